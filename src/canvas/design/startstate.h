// Which elements are shown before anything has been chosen.
#pragma once

#include "forms/state.h"

namespace veneerer::design {

/// Shows the main screen alone, and of the families that share a place only the members that the first row of
/// each style list asks for.
void showStartState(Form1& form);

}  // namespace veneerer::design
