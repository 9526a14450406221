// Elements in words, for the status line and for the names of steps.
#pragma once

#include "forms/state.h"
#include "platform/platform.h"

namespace veneerer {

/// "Label16(3)", "lvButtons_H9".
QString shortName(const Element& element);

/// What the operator knows an element by: its caption, with its index in parentheses for one of many; a
/// screen by its entry in the Edit Section list. Else shortName(). Plain text of one line.
QString elementTitle(const State& state, const Element& element);

/// A property in words: "Font Size", "Back Colour".
QString propertyTitle(Property property);

/// "Arial 9 bold"; empty for an element without a font.
QString fontText(const Element& element);

/// The entry of the Edit Section list whose screen holds the element, or is it; -1 for the frame.
int entryHolding(const State& state, const Element& element);

/// Where the element stands: the entry of its screen in the Edit Section list, or "Frame".
QString screenName(const State& state, const Element& element);

/// One line: name, Section, screen, place and size within its container in twips and in pixels.
QString describe(const State& state, const Element& element, const Screen& screen);

}  // namespace veneerer
