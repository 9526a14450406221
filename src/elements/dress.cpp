#include "elements/dress.h"

namespace veneerer {

void Dress::put(Element& element, Property property, Colour colour) {
  colours_.push_back({&element, property, colour});
  byPlace_.insert({&element, static_cast<int>(property)}, colour);
}

Colour Dress::of(const Element& element, Property property) const {
  const Colour own = element.as<Colour>(property);
  return isEmpty() ? own : byPlace_.value({&element, static_cast<int>(property)}, own);
}

}  // namespace veneerer
