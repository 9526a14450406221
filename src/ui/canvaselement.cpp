#include "ui/canvaselement.h"

namespace veneerer {

Element* canvasElement(State& state, const QString& key) {
  Element* element = state.find(key);
  return element && element->family() && &element->window() == &state.form1 ? element : nullptr;
}

}  // namespace veneerer
