// The built-in design: what the canvas and the tool windows hold before any file has been read.
#pragma once

#include "forms/state.h"

namespace veneerer {

/// Gives every element its container, place, text, look and start visibility, for a Skin of 800 by 600
/// pixels. Lists stay empty; their rows are the start-up's business.
void applyBuiltInDesign(State& state);

}  // namespace veneerer
