#include "ui/elementdrag.h"

#include <algorithm>
#include <cmath>

#include "painting/hittest.h"

namespace veneerer {

namespace {

float wholePixels(double twips, double twipsPerPixel) {
  return static_cast<float>(std::max(1.0, std::round(twips / twipsPerPixel)) * twipsPerPixel);
}

}  // namespace

Surroundings surroundingsOf(const Element& element, const Guides& guides, const CanvasScale& scale) {
  Surroundings around = surroundingsOf(element);
  if (!element.container()) return around;
  const QPointF origin = windowRect(*element.container()).topLeft();
  for (const int guide : guides[static_cast<int>(Axis::X)])
    around.guides[static_cast<int>(Axis::X)].push_back(guide / scale.pixelsPerTwipX() - origin.x());
  for (const int guide : guides[static_cast<int>(Axis::Y)])
    around.guides[static_cast<int>(Axis::Y)].push_back(guide / scale.pixelsPerTwipY() - origin.y());
  return around;
}

QPointF snapped(const Element& element, QPointF place, QPointF anchor, const Surroundings& around,
                double reach) {
  const QRectF wanted =
      QRectF(element.left(), element.top(), element.width(), element.height()).translated(place - anchor);
  return place + snapOffset(wanted, around, reach);
}

void SizeDrag::begin(Handle handle, const Element& element, QPointF at) {
  hands_.release();
  handle_ = handle;
  corner_ = QPointF(element.left(), element.top());
  size_ = QSizeF(element.width(), element.height());
  from_ = at;
}

float SizeDrag::sized(Axis axis, double twips, const std::optional<SizeSnap>& snap) const {
  const Screen& screen = hands_.screen();
  const QRectF wanted(corner_,
                      axis == Axis::X ? QSizeF(twips, size_.height()) : QSizeF(size_.width(), twips));
  const auto offset = snap ? snapFarEdge(wanted, snap->around, axis, snap->reach) : std::nullopt;
  if (offset && twips + *offset > 0) return static_cast<float>(twips + *offset);
  return wholePixels(twips, axis == Axis::X ? screen.twipsPerPixelX() : screen.twipsPerPixelY());
}

void SizeDrag::move(QPointF at, const std::optional<SizeSnap>& snap) {
  const QPointF way = at - from_;
  if (way.isNull() && !hasMoved_) return;
  hasMoved_ = true;
  std::optional<float> width;
  std::optional<float> height;
  if (changesWidth(handle_)) width = sized(Axis::X, size_.width() + way.x(), snap);
  if (changesHeight(handle_)) height = sized(Axis::Y, size_.height() + way.y(), snap);
  hands_.sizeInHand(width, height);
}

void SizeDrag::end() {
  handle_ = Handle::None;
  hasMoved_ = false;
  hands_.release();
}

}  // namespace veneerer
