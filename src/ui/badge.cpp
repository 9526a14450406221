#include "ui/badge.h"

namespace veneerer {

namespace {

constexpr int kSide = 16;  // pixels
constexpr int kInset = 2;  // pixels

const QColor kDisc(0xc6, 0x28, 0x28);

}  // namespace

QRect badgeRect(const QRect& of) {
  return QRect(of.topLeft() + QPoint(kInset, kInset), QSize(kSide, kSide));
}

void paintBadge(QPainter& painter, const QRect& place) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::white, 1));
  painter.setBrush(kDisc);
  painter.drawEllipse(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5));
  QFont font = painter.font();
  font.setPixelSize(kSide - 5);
  font.setBold(true);
  painter.setFont(font);
  painter.drawText(place, Qt::AlignCenter, QStringLiteral("!"));
  painter.restore();
}

}  // namespace veneerer
