// The font and label tools of Form6.
#pragma once

#include "forms/state.h"
#include "platform/platform.h"

namespace veneerer {

enum class Reach { Family, AllFamilies };

/// Text4: the font size of the label in hand, in points; taken as it stands, 0 included.
void applyFontSize(State& state);

/// List1: the font name of the label in hand.
void applyFontName(State& state);

/// "Change Font": name, size and effects from the dialog; cancel changes nothing.
void changeFont(State& state, Dialogs& dialogs);

/// Command1: the size in Text4 goes to the current family but for the label in hand, or to all labels of all
/// families. Nothing happens for a size of 0 or below.
void copyFontSize(State& state, Reach reach);

/// Command4: the same with the name chosen in List1; nothing happens when none is.
void copyFontName(State& state, Reach reach);

/// Whether "Copy Alignment to All Labels" works on that family.
bool copiesAlignment(const State& state, const Family& family);

/// "Copy Alignment to All Labels", by the row of Combo5.
void copyAlignment(State& state);

/// "Show Label Background (Album Cover)".
void showCoverBackgrounds(State& state);

}  // namespace veneerer
