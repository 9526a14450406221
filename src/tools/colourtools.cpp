#include "tools/colourtools.h"

#include <optional>
#include <span>

#include "canvas/sections.h"
#include "tools/colourtext.h"

namespace veneerer {

namespace {

/// Copying colours reaches the menu's buttons up to this one only; those behind keep their colours.
constexpr int kLastColouredMenuButton = 9;

constexpr Property kOptions[] = {Property::ForeColor, Property::BackColor, Property::GradientColor};

std::optional<Property> chosenOption(const State& state) {
  for (int k = 0; k < 3; ++k)
    if (state.form6.Option1[k].isSelected()) return kOptions[k];
  return std::nullopt;
}

/// A label or a picture has no gradient colour.
void colour(Element& element, std::optional<Property> option, Colour number) {
  if (option && element.has(*option)) element.set(*option, number);
}

void colourCurrent(State& state) {
  if (Element* element = currentElement(state, ToolField::Colour))
    colour(*element, chosenOption(state), state.globals.CurrentColour);
}

Colour chooseColour(Dialogs& dialogs) {
  constexpr Colour kBlack;
  return dialogs.chooseColour(kBlack).value_or(kBlack);
}

// The gradient mode is copied along whichever colour is chosen.
void copyTo(State& state, const Family& family) {
  state.globals.CurrentColour = colourNumber(state.form6.Text2->text());
  const auto option = chosenOption(state);
  const int gradient = state.form6.Combo4->listIndex();
  const bool isMenu = &family == &state.form1.lvButtons_H1;
  for (Element* element : family.members()) {
    if (isMenu && element->index() > kLastColouredMenuButton) return;
    colour(*element, option, state.globals.CurrentColour);
    if (gradient >= 0 && element->has(Property::GradientMode)) element->set(Property::GradientMode, gradient);
  }
}

}  // namespace

void typeColour(State& state) {
  if (!isServed(state, ToolField::TypedColour)) return;
  state.globals.CurrentColour = typedColour(state.form6.Text2->text());
  colourCurrent(state);
}

void pickColour(State& state, Dialogs& dialogs) {
  if (state.globals.SectionNumber != 0) takeColour(state, chooseColour(dialogs));
}

void takeColour(State& state, Colour chosen) {
  if (state.globals.SectionNumber == 0) return;
  state.globals.CurrentColour = chosen;
  state.form6.Picture2->setBackColor(chosen);
  state.form6.Text2->setText(QString::number(chosen.number()));
  colourCurrent(state);
}

void pickHighlightColour(State& state, Dialogs& dialogs) {
  takeHighlightColour(state, chooseColour(dialogs));
}

void takeHighlightColour(State& state, Colour chosen) {
  state.globals.CurrentColour = chosen;
  state.form6.Picture1->setBackColor(chosen);
}

void showColour(State& state) {
  const Element* element = currentElement(state, ToolField::ShownColour);
  const auto option = chosenOption(state);
  if (!element || !option || !element->has(*option)) return;
  const Colour shown = element->as<Colour>(*option);
  state.form6.Text2->setText(QString::number(shown.number()));
  state.form6.Picture2->setBackColor(shown);
}

void copyColours(State& state) {
  if (isServed(state, ToolField::CopiedColours))
    copyTo(state, *familyOfSection(state, state.globals.SectionNumber));
}

void copyColoursGlobally(State& state) {
  for (const Section& section : sections())
    if (section.fields.has(ToolField::CopiedColours)) copyTo(state, section.family(state));
}

}  // namespace veneerer
