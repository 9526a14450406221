// Which properties each kind of element has, and what they start with.
#pragma once

#include <span>

#include "elements/element.h"

namespace veneerer {

struct PropertyDefault {
  Property property;
  Value value;
};

/// The kind's properties in storage order.
std::span<const PropertyDefault> propertiesOf(Kind kind);

/// The property's place in that order, -1 when the kind has no such property.
int propertyOffset(Kind kind, Property property);

}  // namespace veneerer
