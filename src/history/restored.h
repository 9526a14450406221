// What of the state an undo brings back.
#pragma once

#include "forms/state.h"

namespace veneerer {

/// Whether undo and redo restore that property: all that a Skin is made of and the panels that hold its
/// choices. Not the fields of the tools, nor which screen shows and which panel is open.
bool isRestored(const State& state, const Element& element, Property property);

}  // namespace veneerer
