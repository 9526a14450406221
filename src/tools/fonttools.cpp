#include "tools/fonttools.h"

#include <algorithm>

#include "canvas/sections.h"
#include "elements/numbers.h"

namespace veneerer {

namespace {

/// Command11: the members from 0 to last take the alignment.
struct AlignedLabels {
  FamilyRef family;
  int last;
};

constexpr AlignedLabels kAlignedLabels[] = {{kCanvas<&Form1::Label9>, 27},  {kCanvas<&Form1::Label10>, 27},
                                            {kCanvas<&Form1::Label45>, 9},  {kCanvas<&Form1::Label44>, 9},
                                            {kCanvas<&Form1::Label62>, 27}, {kCanvas<&Form1::Label63>, 27}};

/// "Show Label Background (Album Cover)" reaches the covers up to this one only.
constexpr int kLastCoverWithBackground = 20;

/// A single label is its own family's only member: no copy reaches it.
void copyToFamily(const Family& family, int except, Property property, const Value& value) {
  if (!family.isArray()) return;
  for (Element* label : family.members())
    if (label->index() != except) label->set(property, value);
}

void copy(State& state, Reach reach, ToolField field, Property property, const Value& value) {
  constexpr int kNone = -1;
  for (const Section& section : sections()) {
    const bool isCurrent = section.number == state.globals.SectionNumber;
    if (!section.fields.has(field) || (reach == Reach::Family && !isCurrent)) continue;
    copyToFamily(section.family(state), reach == Reach::Family ? state.globals.ElementIndex : kNone, property,
                 value);
  }
}

}  // namespace

void applyFontSize(State& state) {
  if (Element* label = currentElement(state, ToolField::FontSize))
    label->set(Property::FontSize, leadingSingle(state.form6.Text4->text()));
}

void applyFontName(State& state) {
  Element* label = currentElement(state, ToolField::FontName);
  if (label && state.form6.List1->listIndex() >= 0) label->set(Property::FontName, state.form6.List1->text());
}

void changeFont(State& state, Dialogs& dialogs) {
  Element* element = currentElement(state, ToolField::FontDialog);
  if (!element) return;
  Label& label = cast<Label>(*element);
  if (const auto font = dialogs.chooseFont(label.font())) label.setFont(*font);
}

void copyFontSize(State& state, Reach reach) {
  const float size = leadingSingle(state.form6.Text4->text());
  if (size > 0) copy(state, reach, ToolField::CopiedFontSize, Property::FontSize, size);
}

void copyFontName(State& state, Reach reach) {
  if (state.form6.List1->listIndex() >= 0)
    copy(state, reach, ToolField::CopiedFontName, Property::FontName, state.form6.List1->text());
}

bool copiesAlignment(const State& state, const Family& family) {
  return std::ranges::any_of(kAlignedLabels,
                             [&](const AlignedLabels& labels) { return &labels.family(state) == &family; });
}

void copyAlignment(State& state) {
  const int row = state.form6.Combo5->listIndex();
  const auto labels = std::ranges::find_if(
      kAlignedLabels, [&](const AlignedLabels& aligned) { return isInHand(state, aligned.family); });
  if (row < 0 || labels == std::end(kAlignedLabels)) return;
  for (Element* label : labels->family(state).members())
    if (label->index() <= labels->last) label->set(Property::Alignment, row);
}

void showCoverBackgrounds(State& state) {
  const bool isOpaque = state.form6.Check1->isTicked();
  for (int i = 0; i <= kLastCoverWithBackground; ++i) {
    state.form1.Label9[i].setOpaque(isOpaque);
    state.form1.Label10[i].setOpaque(isOpaque);
  }
}

}  // namespace veneerer
