// What each control of the tool windows does, in one sentence, for its tool tip.
#pragma once

#include <QString>

#include "elements/element.h"

namespace veneerer {

/// The sentence without a full stop; empty for an element that is no control of a tool window. "%1" stands
/// for what is in hand ("the button"), "%2" for all that are of its kind ("buttons").
QString controlTip(const Element& control);

}  // namespace veneerer
