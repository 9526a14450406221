// What of a window's elements can be seen at all.
#pragma once

#include <QList>
#include <QRectF>
#include <vector>

#include "elements/element.h"
#include "elements/stage.h"
#include "painting/pixels.h"

namespace veneerer {

struct SeenElement {
  const Element* element;
  QRectF rect;  ///< the element's place, pixels
  QRectF clip;  ///< what is seen of it lies in there
};

/// The parts of an element's place, all in pixels, that show nothing of what lies behind it.
QList<QRectF> opaqueParts(const Element& element, const QRectF& rect);

/// The visible elements within a container, each within its own containers, that can be seen in a rectangle
/// of pixels: from the back to the front. One that large opaque elements hide isn't among them; one that they
/// leave pieces of comes once for each.
std::vector<SeenElement> seenElements(const Element& container, const QRectF& exposed,
                                      const PixelScale& scale);
/// The same for what stands on a window.
std::vector<SeenElement> seenElements(const Stage& stage, const QRectF& exposed, const PixelScale& scale);

}  // namespace veneerer
