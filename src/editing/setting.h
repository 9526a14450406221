// Sets a property of an element as such: no Section takes part, and none of the tools' exceptions.
#pragma once

#include "elements/element.h"

namespace veneerer {

/// Sets the property, which the element must have. A button rebuilds its outline at a new size, for which its
/// shape goes to 0 and back.
void setProperty(Element& element, Property property, const Value& value);

/// The properties that make up the look of a label or a button, and that one element can give to another:
/// colours, font, style.
bool isLook(Property property);

/// Gives an element what it has in common of the other one's look.
void copyLook(const Element& from, Element& to);

}  // namespace veneerer
