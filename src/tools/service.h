// Which fields of Form6 do something for what is in hand.
#pragma once

#include "forms/state.h"

namespace veneerer {

/// Whether typing into that field, or choosing there, reaches the element in hand. Any other control always
/// does what it does.
bool servesWhatIsInHand(const State& state, const Element& control);

}  // namespace veneerer
