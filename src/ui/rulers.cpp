#include "ui/rulers.h"

#include <QMouseEvent>
#include <algorithm>
#include <cmath>

#include "ui/canvasview.h"

namespace veneerer {

namespace {

// Pixels.
constexpr int kClosestFigures = 50;
constexpr int kClosestTicks = 8;
constexpr int kGuideReach = 4;

constexpr Axis other(Axis axis) {
  return axis == Axis::X ? Axis::Y : Axis::X;
}

}  // namespace

Ruler::Ruler(Axis axis, CanvasView& view) : QWidget(&view), axis_(axis), view_(view) {
  QFont small = font();
  small.setPixelSize(10);
  setFont(small);
  setCursor(axis == Axis::X ? Qt::SplitVCursor : Qt::SplitHCursor);
  setToolTip(tr("Canvas pixels. Drag a guide from here; drag its mark off the view to remove it"));
  setAccessibleName(axis == Axis::X ? tr("Ruler across") : tr("Ruler down"));
}

int Ruler::stepAt(const Zoom& zoom) {
  for (int power = 1;; power *= 10)
    for (const int each : {1, 2, 5})
      if (each * power * zoom.factor() >= kClosestFigures) return each * power;
}

void Ruler::setPointer(std::optional<QPointF> place) {
  std::optional<int> next;
  if (place) next = along(place->toPoint() + view_.origin());
  if (next == pointer_) return;
  pointer_ = next;
  update();
}

// A part of the ruler that begins at its inner edge.
QRect Ruler::bar(int from, int length, int depth) const {
  return axis_ == Axis::X ? QRect(from, kThickness - depth, length, depth)
                          : QRect(kThickness - depth, from, depth, length);
}

void Ruler::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  paintOutline(painter);
  paintTicks(painter);
  paintMarks(painter);
}

void Ruler::paintOutline(QPainter& painter) const {
  const QRect outline = view_.canvas().outline().adjusted(1, 1, 0, 0);
  if (view_.canvas().outline().isNull()) return;
  QColor colour = palette().color(QPalette::Highlight);
  colour.setAlpha(90);
  const int length = axis_ == Axis::X ? outline.width() - 1 : outline.height() - 1;
  painter.fillRect(bar(along(outline.topLeft() + view_.origin()), length, kThickness), colour);
}

void Ruler::paintTicks(QPainter& painter) const {
  const double factor = view_.zoom().factor();
  const int origin = along(view_.origin());
  const int length = axis_ == Axis::X ? width() : height();
  const int step = stepAt(view_.zoom());
  // A fifth and a tenth of any step are whole pixels or are left out.
  const int parts = step % 10 == 0 && step * factor / 10 >= kClosestTicks ? 10 : step % 5 == 0 ? 5 : 1;
  const int each = step / parts;
  const QColor ink = palette().color(QPalette::WindowText);
  const int first = static_cast<int>(std::floor(-origin / factor / each)) * each;
  for (int pixel = first; origin + pixel * factor < length; pixel += each) {
    const int place = origin + qRound(pixel * factor);
    const bool isFigure = pixel % step == 0;
    painter.fillRect(bar(place, 1, isFigure ? kThickness : 4), ink);
    painter.setPen(ink);
    if (isFigure) paintFigure(painter, place, pixel);
  }
  painter.fillRect(bar(0, length, 1), palette().color(QPalette::Mid));
}

// Beside its tick, and on the ruler at the left from bottom to top.
void Ruler::paintFigure(QPainter& painter, int place, int figure) const {
  const QString text = QString::number(figure);
  if (axis_ == Axis::X) return painter.drawText(QPoint(place + 3, 11), text);
  painter.save();
  painter.translate(11, place - 3);
  painter.rotate(-90);
  painter.drawText(QPoint(0, 0), text);
  painter.restore();
}

void Ruler::paintMarks(QPainter& painter) const {
  const QColor colour = palette().color(QPalette::Highlight);
  for (const int guide : view_.guides()[static_cast<int>(axis_)])
    painter.fillRect(bar(along(view_.origin()) + qRound(guide * view_.zoom().factor()) - 2, 5, 8), colour);
  if (pointer_) painter.fillRect(bar(*pointer_, 1, kThickness), colour);
}

void Ruler::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  others_ = view_.guides();
  QList<int>& own = others_[static_cast<int>(axis_)];
  const auto taken = std::ranges::find_if(own, [&](int guide) {
    const double place = along(view_.origin()) + guide * view_.zoom().factor();
    return std::abs(along(event->position().toPoint()) - place) <= kGuideReach;
  });
  moved_ = taken == own.end() ? other(axis_) : axis_;
  if (taken != own.end()) own.erase(taken);
}

void Ruler::mouseMoveEvent(QMouseEvent* event) {
  if (!(event->buttons() & Qt::LeftButton)) return;
  const QPoint place = mapTo(&view_, event->position().toPoint()) - view_.viewport()->pos();
  const bool isAcross = moved_ == Axis::X;
  const int at = isAcross ? place.x() : place.y();
  const int room = isAcross ? view_.viewport()->width() : view_.viewport()->height();
  const int origin = isAcross ? view_.origin().x() : view_.origin().y();
  Guides guides = others_;
  if (at >= 0 && at < room)
    guides[static_cast<int>(moved_)].append(qRound((at - origin) / view_.zoom().factor()));
  view_.setGuides(guides);
}

}  // namespace veneerer
