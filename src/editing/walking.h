// From one element of the canvas to the next.
#pragma once

#include "forms/state.h"

namespace veneerer {

/// The element that stands behind (1) or ahead of (-1) that one in the order of reading, by their top left
/// corners, among those that are shown; the other end of the row at its end. The first or the last one when
/// it isn't among them. Null when nothing is shown.
Element* neighbourOf(State& state, const Element* element, int step);

}  // namespace veneerer
