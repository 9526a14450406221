// The commands of Form6 that line up a whole family at once: the family of the current Section, in the range
// that geometrytables.h gives. Each reads its fields when it runs; a text that holds no number counts as 0.
#pragma once

#include "elements/axis.h"
#include "forms/state.h"

namespace veneerer {

enum class GeometryTool;

/// Whether the command has a range for that family, or for another one in its place.
bool hasRange(const State& state, GeometryTool tool, const Family& family);

/// "Make Buttons Same Size": Height and Width from Text3.
void makeSameSize(State& state);

/// "Make Buttons Same Place": Top and Left of the screens from Text9.
void makeSamePlace(State& state);

/// "Shift X" and "Shift Y": Left or Top grows by Text5.
void shift(State& state, Axis axis);

/// "Align X" and "Align Y": Left or Top becomes that of the element clicked last.
void align(State& state, Axis axis);

/// "Space X" and "Space Y": each element is set behind its neighbour.
void space(State& state, Axis axis);

/// "Snap To Grid": towards zero, onto multiples of Text10, where values below 1 become "1".
void snapToGrid(State& state);

/// "Clear Button Images".
void clearImages(State& state);

/// "Copy Styles To All Buttons": shape and style from Combo1 and Combo2; a list without a chosen row is
/// passed over.
void copyStyles(State& state);

}  // namespace veneerer
