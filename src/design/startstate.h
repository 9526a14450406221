// Which elements are shown before anything has been chosen.
#pragma once

#include "forms/state.h"

namespace veneerer::design {

/// Shows the main screen alone, and of the families that share a place only the members that the first row of
/// each style list asks for. The covers in use and the box of their frames say what is shown, so that a cover
/// file that is saved at once holds it all.
void showStartState(State& state);

}  // namespace veneerer::design
