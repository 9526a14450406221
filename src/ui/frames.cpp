#include "ui/frames.h"

namespace veneerer {

namespace {

void paintLine(QPainter& painter, const QRect& area, const QColor& colour, int width) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawRects(QList<QRect>{
      {area.left(), area.top(), area.width(), width},
      {area.left(), area.bottom() + 1 - width, area.width(), width},
      {area.left(), area.top(), width, area.height()},
      {area.right() + 1 - width, area.top(), width, area.height()},
  });
}

}  // namespace

void paintFrame(QPainter& painter, const QAbstractButton& control) {
  const QPalette& colours = control.palette();
  const QRect area = control.rect();
  const bool isPointedAt = control.underMouse() && control.isEnabled();
  if (control.hasFocus()) paintLine(painter, area, colours.color(QPalette::Highlight), 3);
  if (isPointedAt)
    paintLine(painter, area, colours.color(QPalette::Text), 1);
  else if (!control.hasFocus())
    paintLine(painter, area, colours.color(QPalette::Mid), 1);
}

}  // namespace veneerer
