// The properties of an element as rows that can be read and typed into.
#pragma once

#include <optional>
#include <vector>

#include "elements/element.h"
#include "platform/platform.h"

namespace veneerer {

/// The properties of elements of the canvas that an operator may want to see and set: those of the first one
/// in their order, and behind them what only the others have.
std::vector<Property> inspectedProperties(const std::vector<Element*>& elements);

/// The value as a text: numbers in their plain form, a colour as #RRGGBB and a system colour as its number, a
/// picture as its file's path.
QString valueText(const Value& value);

/// The value that such a text names, of the property's type; nothing for a text that names none.
std::optional<Value> typedValue(Property property, const QString& text);

/// A place or a size in pixels of that screen; empty for any other property.
QString pixelText(const Element& element, Property property, const Screen& screen);

/// The value of a place or a size that is so many pixels; nothing for a text that is no number.
std::optional<Value> typedPixels(Property property, const QString& text, const Screen& screen);

}  // namespace veneerer
