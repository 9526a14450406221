// The Sections: the numbered edit targets of the tools, one for each family that answers to a click.
#pragma once

#include <span>

#include "canvas/familyref.h"
#include "canvas/toolfields.h"

namespace veneerer {

/// One numbered edit target, and what of Form6 serves it.
struct Section {
  int number;
  FamilyRef family;
  ToolFields fields;
  /// The click of a single control that sets ElementIndex to 0; others leave it as it was, so that a later
  /// tool on an array still sees the old index.
  bool clearsIndex = false;
};

/// Every Section with a family, by its number. Section 7 has none and no click makes it current.
std::span<const Section> sections();

/// The Section of that number, null when the number names nothing.
const Section* findSection(int number);

/// The number of the Section that a click on the family makes current, 0 for a family without click handling.
int sectionOf(const State& state, const Family& family);

/// The family of that Section, null when the number names nothing.
Family* familyOfSection(State& state, int number);

/// Whether that family's Section is the current one.
bool isInHand(const State& state, FamilyRef family);

/// Whether that field serves the current Section.
bool isServed(const State& state, ToolField field);

/// The element in hand: the current Section's member at ElementIndex, or its single control. Null when there
/// is none.
const Element* currentElement(const State& state);
Element* currentElement(State& state);

/// The element in hand when that field serves the current Section, else null.
Element* currentElement(State& state, ToolField field);

}  // namespace veneerer
