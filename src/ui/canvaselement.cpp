#include "ui/canvaselement.h"

#include "canvas/description.h"
#include "canvas/screens.h"

namespace veneerer {

Element* canvasElement(State& state, const QString& key) {
  Element* element = state.find(key);
  return element && element->family() && &element->window() == &state.form1 ? element : nullptr;
}

void goToElement(Operator& hands, Element& element) {
  ComboBox& screens = *hands.state().form6.Combo6;
  const int entry = entryHolding(hands.state(), element);
  if (entry >= 0 && !isOnShownScreen(hands.state(), element)) hands.choose(screens, entry);
  hands.overlay().select({&element});
}

}  // namespace veneerer
