// The colours that a Skin stores, and how they look recoloured.
#pragma once

#include "editing/coloursinuse.h"
#include "elements/dress.h"
#include "recolouring/colourmap.h"

namespace veneerer {

/// Where the state has the colours that its record files and its cover file hold, in the order of the
/// windows; system colours left out. It holds until another colour is set or the number of covers changes.
std::vector<ColourPlace> storedColours(State& state);

/// Those of them that stand on the screen of that entry, 0 to 31; what stands on the frame counts as the Main
/// Screen's.
std::vector<ColourPlace> onScreen(const State& state, const std::vector<ColourPlace>& places, int entry);

/// What becomes of the colours of these places; those that stay aren't in it.
Dress recoloured(const std::vector<ColourPlace>& places, const ColourMap& map);

}  // namespace veneerer
