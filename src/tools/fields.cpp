#include "tools/fields.h"

#include <algorithm>

#include "canvas/sections.h"
#include "elements/numbers.h"

namespace veneerer {

namespace {

constexpr FamilyRef kScreens = kCanvas<&Form1::Picture1>;
constexpr FamilyRef kCoverCaptions[] = {kCanvas<&Form1::Label9>, kCanvas<&Form1::Label10>};

void applyRow(State& state, const ComboBox& list, ToolField field, Property property) {
  Element* element = currentElement(state, field);
  if (element && list.listIndex() >= 0) element->set(property, list.listIndex());
}

void alignCovers(const Family& captions, int clicked, int lastCover, int alignment) {
  const int first = clicked < kHighestCover ? 0 : kHighestCover;
  const int last = clicked < kHighestCover ? lastCover : kHighestCover;
  for (int i = first; i <= last && captions.find(i); ++i)
    captions.find(i)->set(Property::Alignment, alignment);
}

}  // namespace

void applyCaption(State& state) {
  if (Element* button = currentElement(state, ToolField::Caption))
    button->set(Property::Caption, state.form6.Text1->text());
}

void applyPlace(State& state, int field) {
  const float twips = leadingSingle(state.form6.Text9[field].text());
  Element* screen = isInHand(state, kScreens) ? currentElement(state) : nullptr;
  if (screen && twips > 0) screen->set(field == 0 ? Property::Top : Property::Left, twips);
}

void applyShape(State& state) {
  applyRow(state, *state.form6.Combo1, ToolField::Shape, Property::ButtonShape);
}

void applyStyle(State& state) {
  applyRow(state, *state.form6.Combo2, ToolField::Style, Property::ButtonStyle);
}

void applyGradient(State& state) {
  applyRow(state, *state.form6.Combo4, ToolField::Gradient, Property::GradientMode);
}

void applyAlignment(State& state) {
  const auto captions = std::ranges::find_if(kCoverCaptions, [&](FamilyRef f) { return isInHand(state, f); });
  if (captions == std::end(kCoverCaptions))
    return applyRow(state, *state.form6.Combo5, ToolField::Alignment, Property::Alignment);
  const int row = state.form6.Combo5->listIndex();
  if (row < 0) return;
  alignCovers((*captions)(state), state.globals.ElementIndex, state.globals.LastCoverIndex->value(), row);
}

}  // namespace veneerer
