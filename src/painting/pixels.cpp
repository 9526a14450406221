#include "painting/pixels.h"

#include <algorithm>
#include <cmath>

namespace veneerer {

namespace {

constexpr double kFarthestPixel = 1e6;
constexpr double kLeastDeviceScale = 1.0 / 16;
constexpr double kMostDeviceScale = 8;
constexpr double kTwipsPerPoint = 20;
constexpr double kTallestFont = 2000;  // pixels

double withinReach(double pixels) {
  return std::clamp(pixels, -kFarthestPixel, kFarthestPixel);
}

}  // namespace

double PixelScale::snapped(double pixels) const {
  return std::round(pixels * device) / device;
}

double deviceScale(const QPainter& painter) {
  const QTransform t = painter.deviceTransform();
  const double scale = std::hypot(t.m11(), t.m12());
  return std::isfinite(scale) ? std::clamp(scale, kLeastDeviceScale, kMostDeviceScale) : 1;
}

std::optional<QRectF> pixelRect(const Element& element, QPointF origin, const PixelScale& scale) {
  const double left = element.left() * scale.x;
  const double top = element.top() * scale.y;
  const double width = element.width() * scale.x;
  const double height = element.height() * scale.y;
  if (!std::isfinite(left) || !std::isfinite(top) || !(width > 0) || !(height > 0)) return {};
  const QRectF rect(origin.x() + scale.snapped(withinReach(left)),
                    origin.y() + scale.snapped(withinReach(top)), scale.snapped(withinReach(width)),
                    scale.snapped(withinReach(height)));
  if (rect.isEmpty()) return {};
  return rect;
}

double lostWidth(const Element& element, const QRectF& rect, const PixelScale& scale) {
  if (scale.device == 1) return 0;
  // Below the whole number that it is added up to, which is rounded up.
  constexpr double kRounding = 1e-6;
  const double lost = std::round(element.width() * scale.x) - rect.width() - kRounding;
  return std::abs(lost) <= 1 + 1 / scale.device ? lost : 0;
}

int fontPixels(float points, double pixelsPerTwip) {
  const double pixels = points * kTwipsPerPoint * pixelsPerTwip;
  if (!(pixels > 0)) return 0;
  return static_cast<int>(std::clamp(std::round(pixels), 1.0, kTallestFont));
}

}  // namespace veneerer
