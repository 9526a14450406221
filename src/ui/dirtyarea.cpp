#include "ui/dirtyarea.h"

#include <algorithm>
#include <cmath>

#include "elements/element.h"
#include "painting/hittest.h"

namespace veneerer {

namespace {

// Beyond this many rectangles their bounds are cheaper to paint than they are.
constexpr int kMostRectangles = 24;
// Far outside any screen, and far inside a whole number.
constexpr double kFar = 1 << 20;

// The container's place counts for what is shown, the element's own visibility doesn't: it may just have
// gone.
bool standsInSight(const Element& element) {
  return element.container() && isShown(*element.container());
}

QRectF placeBefore(const Change& change, QRectF place) {
  const float* old = std::get_if<float>(&change.oldValue);
  if (!old) return place;
  const Element& e = change.element;
  if (change.property == Property::Left) place.translate(double(*old) - e.left(), 0);
  if (change.property == Property::Top) place.translate(0, double(*old) - e.top());
  if (change.property == Property::Width) place.setWidth(*old);
  if (change.property == Property::Height) place.setHeight(*old);
  return place;
}

int clamped(double pixels) {
  return std::isnan(pixels) ? 0 : static_cast<int>(std::clamp(pixels, -kFar, kFar));
}

}  // namespace

void DirtyArea::add(const Change& change) {
  const Element& element = change.element;
  if (change.property == Property::ToolTipText || !standsInSight(element)) return;
  if (change.property != Property::Visible && !element.isVisible()) return;
  const QRectF place = windowRect(element);
  add(pixelsOf(place));
  const QRectF before = placeBefore(change, place);
  if (before != place) add(pixelsOf(before));
}

void DirtyArea::add(const QRect& pixels) {
  region_ += pixels;
  if (region_.rectCount() > kMostRectangles) region_ = region_.boundingRect();
}

void DirtyArea::addAll() {
  region_ = QRect(QPoint(clamped(-kFar), clamped(-kFar)), QPoint(clamped(kFar), clamped(kFar)));
}

QRegion DirtyArea::take() {
  return std::exchange(region_, QRegion());
}

QRect DirtyArea::pixelsOf(const QRectF& twips) const {
  const int left = clamped(std::floor(twips.left() * x_)) - 1;
  const int top = clamped(std::floor(twips.top() * y_)) - 1;
  const int right = clamped(std::ceil(twips.right() * x_));
  const int bottom = clamped(std::ceil(twips.bottom() * y_));
  return QRect(QPoint(left, top), QPoint(right, bottom));
}

}  // namespace veneerer
