// What the steps of the history are called.
#pragma once

#include "history/changes.h"

namespace veneerer {

/// "Height of Move Up (2)", "Fore Colour of 14 elements": after what has changed, on the canvas if anything
/// has. Plain text of one line.
QString stepName(const State& state, const Changes& changes);

/// What an action of that control of a panel is called: its caption or its label; empty for what is better
/// named after its effect.
QString actionName(const State& state, const Element& control);

}  // namespace veneerer
