// Which properties each kind of element has, and what they start with.
#pragma once

#include <span>

#include "elements/element.h"

namespace veneerer {

/// The platform's standard for a button and its text, system colours in the form of the record files.
inline constexpr Colour kButtonFace = static_cast<std::int32_t>(0x8000000F);
inline constexpr Colour kButtonText = static_cast<std::int32_t>(0x80000012);

struct PropertyDefault {
  Property property;
  Value value;
};

/// The kind's properties in storage order.
std::span<const PropertyDefault> propertiesOf(Kind kind);

/// The property's place in that order, -1 when the kind has no such property.
int propertyOffset(Kind kind, Property property);

}  // namespace veneerer
