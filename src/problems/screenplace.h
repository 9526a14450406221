// Where on the canvas an element is, each screen taken as if it were the one that is shown.
#pragma once

#include <QRectF>

#include "forms/state.h"
#include "painting/pixels.h"

namespace veneerer {

/// The entry of the screen that the element stands on; what stands on the frame counts as the Main Screen's.
int screenEntryOf(const State& state, const Element& element);

/// Whether the element, which belongs to the canvas, can be seen when its screen is shown: it has an area,
/// and nothing that holds it is hidden but, maybe, the screen itself.
bool isShownOnScreen(const State& state, const Element& element);

/// The element's place in the window, pixels.
QRectF pixelPlace(const Element& element, const PixelScale& scale);

/// The same, but for what its containers cut off.
QRectF partWithinContainers(const Element& element, const PixelScale& scale);

/// An element that hides all that its containers leave of this one; null when there is none.
const Element* hiderOf(const State& state, const Element& element, const PixelScale& scale);

}  // namespace veneerer
