// The colour tools of Form6. One colour is in hand at a time, Globals::CurrentColour; Option1 says which of
// an element's colours they write.
#pragma once

#include "forms/state.h"
#include "platform/platform.h"

namespace veneerer {

/// Text2 was typed into: its colour is taken in hand and given to the element in hand.
void typeColour(State& state);

/// Picture2 was clicked: the colour of the dialog is taken in hand, shown and given to the element in hand.
/// The dialog opens on black, and cancelling it counts as choosing black.
void pickColour(State& state, Dialogs& dialogs);

/// What pickColour() does with a colour that was chosen otherwise.
void takeColour(State& state, Colour chosen);

/// Picture1 was clicked: the colour of the dialog becomes the key highlight colour.
void pickHighlightColour(State& state, Dialogs& dialogs);

/// What pickHighlightColour() does with a colour that was chosen otherwise.
void takeHighlightColour(State& state, Colour chosen);

/// An option of Option1 was clicked: Text2 and Picture2 show that colour of the element in hand; nothing else
/// changes. The caller must keep the change of Text2 from counting as typing.
void showColour(State& state);

/// "Copy Colours": the number in Text2 goes to every element of the current family.
void copyColours(State& state);

/// "Global Copy Colours": the same for every family that can be recoloured.
void copyColoursGlobally(State& state);

}  // namespace veneerer
