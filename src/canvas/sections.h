// The Sections: the numbered edit targets of the tools, one for each family that answers to a click.
#pragma once

#include <span>
#include <string_view>

#include "canvas/familyref.h"

namespace veneerer {

/// The fields of Form6 that serve a Section or not, by their letter in the table.
enum class ToolField : char {
  Caption = 'C',     ///< Text1
  Size = 'Z',        ///< Text3
  Shape = 'S',       ///< Combo1
  Style = 'Y',       ///< Combo2
  Gradient = 'G',    ///< Combo4
  Alignment = 'A',   ///< Combo5
  Colour = 'K',      ///< the colour sample Picture2
  FontSize = 'F',    ///< Text4
  FontName = 'N',    ///< List1
  FontDialog = 'D',  ///< "Change Font"
};

/// One numbered edit target and the fields of Form6 that serve it.
struct Section {
  int number;
  FamilyRef family;
  std::string_view fields;
  /// The click of a single control that sets ElementIndex to 0; others leave it as it was, so that a later
  /// tool on an array still sees the old index.
  bool clearsIndex = false;

  bool serves(ToolField field) const {
    return fields.find(static_cast<char>(field)) != std::string_view::npos;
  }
};

/// Every Section with a family, by its number. Section 7 has none and no click makes it current.
std::span<const Section> sections();

/// The Section of that number, null when the number names nothing.
const Section* findSection(int number);

/// The number of the Section that a click on the family makes current, 0 for a family without click handling.
int sectionOf(State& state, const Family& family);

/// The family of that Section, null when the number names nothing.
Family* familyOfSection(State& state, int number);

/// Whether the number stands in a list of Sections.
bool contains(std::span<const int> numbers, int number);

/// The element in hand: the current Section's member at ElementIndex, or its single control. Null when there
/// is none.
Element* currentElement(State& state);

/// The element in hand when that field serves the current Section, else null.
Element* currentElement(State& state, ToolField field);

}  // namespace veneerer
