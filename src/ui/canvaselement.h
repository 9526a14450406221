// The element of the canvas that a row of a panel tells of.
#pragma once

#include "ui/operator.h"

namespace veneerer {

/// The element of Form1 under that key, null where the key names none or the window itself.
Element* canvasElement(State& state, const QString& key);

/// Shows the screen that holds the element, if it isn't shown, and selects the element on the overlay.
void goToElement(Operator& hands, Element& element);

}  // namespace veneerer
