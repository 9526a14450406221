#include "tools/toolspalette.h"

#include "canvas/familyref.h"
#include "canvas/screens.h"
#include "tools/colourtools.h"
#include "tools/fields.h"
#include "tools/fonttools.h"
#include "tools/geometrytools.h"

namespace veneerer {

namespace {

using Action = void (*)(ToolsPalette& palette, Element& element);

struct FieldAction {
  FamilyRef field;
  Property property;
  Action act;
};

constexpr FieldAction kOnChange[] = {
    {kTools<&Form6::Text1>, Property::Text, [](ToolsPalette& p, Element&) { applyCaption(p.state()); }},
    {kTools<&Form6::Text2>, Property::Text, [](ToolsPalette& p, Element&) { typeColour(p.state()); }},
    {kTools<&Form6::Text3>, Property::Text,
     [](ToolsPalette& p, Element& field) { applySize(p.state(), field.index()); }},
    {kTools<&Form6::Text4>, Property::Text, [](ToolsPalette& p, Element&) { applyFontSize(p.state()); }},
    {kTools<&Form6::Text9>, Property::Text,
     [](ToolsPalette& p, Element& field) { applyPlace(p.state(), field.index()); }},
    {kTools<&Form6::Combo1>, Property::ListIndex, [](ToolsPalette& p, Element&) { applyShape(p.state()); }},
    {kTools<&Form6::Combo2>, Property::ListIndex, [](ToolsPalette& p, Element&) { applyStyle(p.state()); }},
    {kTools<&Form6::Combo4>, Property::ListIndex,
     [](ToolsPalette& p, Element&) { applyGradient(p.state()); }},
    {kTools<&Form6::Combo5>, Property::ListIndex,
     [](ToolsPalette& p, Element&) { applyAlignment(p.state()); }},
    {kTools<&Form6::Combo6>, Property::ListIndex,
     [](ToolsPalette& p, Element& list) {
       showScreen(p.state(), list.as<std::int32_t>(Property::ListIndex));
     }},
    {kTools<&Form6::List1>, Property::ListIndex, [](ToolsPalette& p, Element&) { applyFontName(p.state()); }},
    {kTools<&Form6::Option1>, Property::Value,
     [](ToolsPalette& p, Element& option) {
       if (cast<OptionButton>(option).isSelected()) p.showColour();
     }},
    {kTools<&Form6::Check1>, Property::Value,
     [](ToolsPalette& p, Element&) { showCoverBackgrounds(p.state()); }},
};

struct ClickAction {
  FamilyRef family;
  Action act;
};

Axis axisOf(const Element& command) {
  return static_cast<Axis>(command.index());
}

Reach reachOf(const Element& command) {
  return command.index() == 0 ? Reach::Family : Reach::AllFamilies;
}

void clickOption(ToolsPalette& palette, Element& element) {
  auto& option = cast<OptionButton>(element);
  if (option.isSelected())
    palette.showColour();
  else
    option.select();
}

void clickCopyColours(ToolsPalette& palette, Element& command) {
  if (reachOf(command) == Reach::Family)
    copyColours(palette.state());
  else
    copyColoursGlobally(palette.state());
}

constexpr ClickAction kOnClick[] = {
    {kTools<&Form6::Option1>, clickOption},
    {kTools<&Form6::Picture1>,
     [](ToolsPalette& p, Element&) { pickHighlightColour(p.state(), p.platform().dialogs); }},
    {kTools<&Form6::Picture2>,
     [](ToolsPalette& p, Element&) { pickColour(p.state(), p.platform().dialogs); }},
    {kTools<&Form6::Command1>, [](ToolsPalette& p, Element& c) { copyFontSize(p.state(), reachOf(c)); }},
    {kTools<&Form6::Command2>, clickCopyColours},
    {kTools<&Form6::Command3>, [](ToolsPalette& p, Element&) { copyStyles(p.state()); }},
    {kTools<&Form6::Command4>, [](ToolsPalette& p, Element& c) { copyFontName(p.state(), reachOf(c)); }},
    {kTools<&Form6::Command5>, [](ToolsPalette& p, Element&) { makeSameSize(p.state()); }},
    {kTools<&Form6::Command6>, [](ToolsPalette& p, Element& c) { shift(p.state(), axisOf(c)); }},
    {kTools<&Form6::Command7>, [](ToolsPalette& p, Element&) { clearImages(p.state()); }},
    {kTools<&Form6::Command8>, [](ToolsPalette& p, Element& c) { align(p.state(), axisOf(c)); }},
    {kTools<&Form6::Command9>, [](ToolsPalette& p, Element& c) { space(p.state(), axisOf(c)); }},
    {kTools<&Form6::Command10>, [](ToolsPalette& p, Element&) { p.rescale().run(); }},
    {kTools<&Form6::Command11>, [](ToolsPalette& p, Element&) { copyAlignment(p.state()); }},
    {kTools<&Form6::Command12>, [](ToolsPalette& p, Element&) { makeSamePlace(p.state()); }},
    {kTools<&Form6::Command13>, [](ToolsPalette& p, Element&) { snapToGrid(p.state()); }},
    {kTools<&Form6::Command14>,
     [](ToolsPalette& p, Element&) { changeFont(p.state(), p.platform().dialogs); }},
};

}  // namespace

ToolsPalette::ToolsPalette(State& state, Platform& platform, Progress* progress)
    : state_(state), platform_(platform), rescale_(state, platform, progress) {
  for (const FieldAction& row : kOnChange)
    attachments_.push_back(state.board.onChange(row.field(state), row.property, [this, &row](Element& field) {
      if (!isShowingColour_) row.act(*this, field);
    }));
  for (const ClickAction& row : kOnClick)
    attachments_.push_back(
        state.board.onClick(row.family(state), [this, &row](Element& element) { row.act(*this, element); }));
}

void ToolsPalette::showColour() {
  isShowingColour_ = true;
  veneerer::showColour(state_);
  isShowingColour_ = false;
}

}  // namespace veneerer
