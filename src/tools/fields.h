// What a change of a field of Form6 does to the element in hand. A Section that a field doesn't serve is left
// alone without a word.
#pragma once

#include "forms/state.h"

namespace veneerer {

/// Text1: the caption.
void applyCaption(State& state);

/// Text3(0), the height, and Text3(1), the width; only values above 0.
void applySize(State& state, int field);

/// Text9(0), the top, and Text9(1), the left, of a screen; only values above 0.
void applyPlace(State& state, int field);

// The lists; a list without a chosen row changes nothing.

/// Combo1.
void applyShape(State& state);
/// Combo2.
void applyStyle(State& state);
/// Combo4.
void applyGradient(State& state);
/// Combo5: the alignment of a label; a cover's caption takes all captions of the covers in use along.
void applyAlignment(State& state);

}  // namespace veneerer
