// A picture file that is dropped on something: whose choice it is.
#pragma once

#include "forms/state.h"

namespace veneerer {

/// The button or panel of the canvas, or the thumbnail, whose file dialog such a drop answers: the element
/// itself, else the nearest of what holds it. Null where none takes this file.
Element* pictureTaker(State& state, Element& element, const QString& path);

}  // namespace veneerer
