// The jukebox fills its labels when it runs. On the canvas a click or a press puts a text in their place that
// shows where the label stands and how its font looks.
#pragma once

#include "canvas/familyref.h"

namespace veneerer {

void putClickPlaceholder(State& state, Element& element);
void putPressPlaceholder(State& state, Element& element);

/// Whether the family's labels turn opaque under a left press, so that a transparent one can be seen.
bool turnsOpaqueOnPress(const State& state, const Family& family);

}  // namespace veneerer
