// From twips to pixels. Every number may come from a stranger's Skin, so all of them pass here before they
// reach a painter.
#pragma once

#include <QPainter>
#include <QRectF>
#include <optional>

#include "elements/element.h"

namespace veneerer {

/// How large twips are on a painter.
struct PixelScale {
  double x = 1.0 / 15;  ///< device-independent pixels per twip, across
  double y = 1.0 / 15;  ///< the same, down
  double device = 1;    ///< device pixels per device-independent pixel

  /// A distance rounded to the device's own pixels, so that edges stay sharp.
  double snapped(double pixels) const;
};

/// Device pixels per pixel of a painter, its own scaling included; between 1/16 and 8.
double deviceScale(const QPainter& painter);

/// The pixels of an element whose container's top left corner is there; nothing for an element without an
/// area or with numbers that are none. Far places and sizes are drawn in to a million pixels.
std::optional<QRectF> pixelRect(const Element& element, QPointF origin, const PixelScale& scale);

/// By how much the snapping to a device's pixels narrowed the rectangle that pixelRect() made: where texts
/// break doesn't depend on the device's scale. Below zero where it was widened; 0 at a scale of 1, and for a
/// rectangle that isn't the element's own.
double lostWidth(const Element& element, const QRectF& rect, const PixelScale& scale);

/// The height in pixels of a font of that many points, 1 to 2000; 0 for a size that shows nothing.
int fontPixels(float points, double pixelsPerTwip);

}  // namespace veneerer
