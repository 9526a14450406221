#include "tools/fonttools.h"

#include <algorithm>
#include <span>

#include "canvas/sections.h"
#include "elements/numbers.h"
#include "tools/fonttables.h"

namespace veneerer {

namespace {

/// A single label is its own family's only member: no copy reaches it.
void copyToFamily(const Family& family, int except, Property property, const Value& value) {
  if (!family.isArray()) return;
  for (Element* label : family.members())
    if (label->index() != except) label->set(property, value);
}

void copy(State& state, Reach reach, std::span<const int> sections, Property property, const Value& value) {
  constexpr int kNone = -1;
  for (int section : sections) {
    const bool isCurrent = section == state.globals.SectionNumber;
    if (reach == Reach::Family && !isCurrent) continue;
    copyToFamily(*familyOfSection(state, section),
                 reach == Reach::Family ? state.globals.ElementIndex : kNone, property, value);
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
  Label& label = static_cast<Label&>(*element);
  if (const auto font = dialogs.chooseFont(label.font())) label.setFont(*font);
}

void copyFontSize(State& state, Reach reach) {
  const float size = leadingSingle(state.form6.Text4->text());
  if (size > 0) copy(state, reach, kFontSizeSections, Property::FontSize, size);
}

void copyFontName(State& state, Reach reach) {
  if (state.form6.List1->listIndex() >= 0)
    copy(state, reach, kFontTypeSections, Property::FontName, state.form6.List1->text());
}

void copyAlignment(State& state) {
  const int row = state.form6.Combo5->listIndex();
  const auto labels = std::ranges::find(kAlignedLabels, state.globals.SectionNumber, &AlignedLabels::section);
  if (row < 0 || labels == std::end(kAlignedLabels)) return;
  for (Element* label : familyOfSection(state, labels->section)->members())
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
