#include "ui/zoom.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace veneerer {

namespace {

constexpr int kSteps[] = {10, 12, 17, 25, 33, 50, 67, 75, 100, 125, 150, 200, 300, 400, 600, 800};

int shownLength(int pixels, int percent) {
  return static_cast<int>((qint64(pixels) * percent + 99) / 100);
}

int fittingPercent(int pixels, int room) {
  return static_cast<int>(std::clamp<qint64>(qint64(room) * 100 / std::max(pixels, 1), 0, 100));
}

}  // namespace

Zoom::Zoom(int percent) : percent_(std::clamp(percent, kLeast, kMost)) {}

Zoom Zoom::fitting(QSize canvas, QSize room) {
  return Zoom(
      std::min(fittingPercent(canvas.width(), room.width()), fittingPercent(canvas.height(), room.height())));
}

Zoom Zoom::nearer() const {
  const int* step = std::ranges::upper_bound(kSteps, percent_);
  return Zoom(step == std::end(kSteps) ? kMost : *step);
}

Zoom Zoom::farther() const {
  const int* step = std::ranges::lower_bound(kSteps, percent_);
  return Zoom(step == std::begin(kSteps) ? kLeast : *std::prev(step));
}

QSize Zoom::shown(QSize canvas) const {
  return QSize(shownLength(canvas.width(), percent_), shownLength(canvas.height(), percent_));
}

// Divided last: a place that is a whole canvas pixel must come out as that one.
QPoint Zoom::canvasPixel(QPointF shown) const {
  return QPoint(static_cast<int>(std::floor(shown.x() * 100 / percent_)),
                static_cast<int>(std::floor(shown.y() * 100 / percent_)));
}

QRect Zoom::canvasPixels(const QRect& shown) const {
  const QPointF end = QPointF(shown.right() + 1, shown.bottom() + 1) * 100 / percent_;
  return QRect(canvasPixel(shown.topLeft()),
               QPoint(static_cast<int>(std::ceil(end.x())) - 1, static_cast<int>(std::ceil(end.y())) - 1));
}

QPointF CanvasScale::twipsAt(QPointF shown) const {
  const QPoint pixel = zoom_.canvasPixel(shown);
  return QPointF(pixel.x() / x_, pixel.y() / y_);
}

QPointF CanvasScale::shownAt(QPointF twips) const {
  return QPointF(twips.x() * x_, twips.y() * y_) * zoom_.factor();
}

}  // namespace veneerer
