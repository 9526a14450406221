// Which fields and commands of Form6 do something for what is in hand, and what a control's tool tip says of
// it.
#pragma once

#include "canvas/sections.h"
#include "forms/state.h"

namespace veneerer {

/// Whether the control is for some Sections only. Any other one always does what it does.
bool needsSection(const State& state, const Element& control);

/// Whether that control does something for the elements of the Section; true for one that needs none.
bool servesSection(const State& state, const Element& control, const Section& section);

/// Whether typing into that field, or choosing there, reaches the element in hand or a command that serves
/// it. Any other control, and every command, always does what it does.
bool servesWhatIsInHand(const State& state, const Element& control);

/// What the control of a tool window does, for the element in hand if it does something for it, else why it
/// doesn't, on a line of its own. Plain text, empty for an element that is no such control.
QString toolTipOf(const State& state, const Element& control);

}  // namespace veneerer
