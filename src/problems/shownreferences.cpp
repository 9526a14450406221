#include "problems/shownreferences.h"

#include <algorithm>

#include "skin/catalogue.h"

namespace veneerer {

ShownReferences::ShownReferences(State& state) : state_(state) {
  for (const LoadEntry& entry : loadOrder()) {
    const Layout layout = entry.layout(state);
    for (const Row& row : layout.rows()) {
      const Reference* reference = row.reference();
      if (!reference) continue;
      if (reference->button) add(*reference->into, reference->button);
      for (Element* box : reference->boxes)
        if (box) add(*reference->into, box);
    }
  }
}

void ShownReferences::add(const Element& slot, Element* element) {
  std::vector<Element*>& elements = elements_[&slot];
  if (std::ranges::find(elements, element) != elements.end()) return;
  elements.push_back(element);
  slots_[element].push_back(&slot);
}

const Element* ShownReferences::onCanvas(const Element& slot) const {
  const std::vector<Element*> elements = elementsOf(slot);
  const auto found = std::ranges::find_if(elements, [&](const Element* element) {
    return element->family() && &element->window() == &state_.form1;
  });
  return found == elements.end() ? nullptr : *found;
}

}  // namespace veneerer
