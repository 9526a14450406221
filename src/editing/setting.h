// Sets a property of an element as such: no Section takes part, and none of the tools' exceptions.
#pragma once

#include <utility>
#include <vector>

#include "elements/element.h"

namespace veneerer {

/// Sets the property, which the element must have. A button rebuilds its outline at a new size, for which its
/// shape goes to 0 and back.
void setProperty(Element& element, Property property, const Value& value);

/// The look of an element as it was when it was asked for: the colours, the font and the style of a label or
/// a button, which one element can give to another.
using CopiedLook = std::vector<std::pair<Property, Value>>;
CopiedLook lookOf(const Element& element);

/// Gives an element what it can have of that look.
void giveLook(const CopiedLook& look, Element& to);

}  // namespace veneerer
