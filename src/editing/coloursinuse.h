// The palette of a Skin: which colours its elements have, and how often.
#pragma once

#include <vector>

#include "forms/state.h"

namespace veneerer {

struct ColourUse {
  Colour colour;  ///< a plain one
  int count;      ///< of the properties that have it
};

/// The colours of all elements of the canvas and of the samples in "Tools", the most frequent first; system
/// colours left out.
std::vector<ColourUse> coloursInUse(const State& state);

}  // namespace veneerer
