// The tool windows and the splash: captions and start values. Where their controls stand is up to the shell
// that shows them.
#pragma once

#include "forms/state.h"

namespace veneerer::design {

void composeToolWindows(State& state);

}  // namespace veneerer::design
