// The rows of the lists that start-up fills.
#pragma once

#include "forms/state.h"

namespace veneerer {

/// Fills the lists that the splash's first text covers: the alignments, the Edit Sections, the default
/// screens.
void fillFirstLists(State& state);

/// Fills all other lists, in the order in which their selections take effect.
void fillOtherLists(State& state);

}  // namespace veneerer
