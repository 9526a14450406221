// What of a window is seen, told apart from what its elements say of themselves.
#pragma once

#include <vector>

#include "elements/element.h"

namespace veneerer {

/// The elements that stand directly on a window, from the back to the front, in the place of its visible
/// children: so a screen can be shown without making it visible. Whatever they hold is seen by its own
/// Visible and order.
using Stage = std::vector<Element*>;

/// Whether the element is seen on that stage: it is one of those that stand there, or all that holds it up to
/// one of them is visible, and so is the element itself.
bool isShownOn(const Stage& stage, const Element& element);

}  // namespace veneerer
