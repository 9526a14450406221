#include "canvas/selection.h"

#include "canvas/placeholders.h"
#include "canvas/sections.h"
#include "elements/numbers.h"

namespace veneerer {

namespace {

constexpr FamilyRef kGeneralButtons = kTools<&Form6::lvButtons_H5>;

}  // namespace

void Selection::click(Element& element) {
  if (!element.family()) return;
  const Section* section = findSection(sectionOf(state_, *element.family()));
  if (!section) return;
  state_.globals.SectionNumber = section->number;
  if (element.family()->isArray()) state_.globals.ElementIndex = element.index();
  if (section->clearsIndex) state_.globals.ElementIndex = 0;
  putClickPlaceholder(state_, element);
  // Nothing but the element was chosen: what the fields' handlers are refused is no answer to that.
  const QuietRefusals quiet(state_.board);
  fillFields(element);
}

void Selection::refill() {
  Element* element = currentElement(state_);
  if (!element) return;
  const ViewsOnly views(state_.board);
  fillFields(*element);
}

void Selection::fillFields(Element& element) {
  if (&element.window() == &state_.form6) {
    // The font samples show nothing of themselves.
    if (isInHand(state_, kGeneralButtons)) fillSample(cast<Button>(element));
    return;
  }
  if (element.kind() == Kind::Button) fillButton(cast<Button>(element));
  fillSize(element);
  if (isServed(state_, ToolField::ShownFontSize)) fillLabel(cast<Label>(element));
  if (isServed(state_, ToolField::Place)) fillPlace(element);
}

void Selection::fillSample(Button& sample) {
  state_.form6.Combo1->select(sample.buttonShape());
  state_.form6.Combo2->select(sample.buttonStyle());
  state_.form6.Combo4->select(sample.gradientMode());
}

void Selection::fillButton(Button& button) {
  state_.form6.Text1->setText(button.caption());
  fillSample(button);
}

void Selection::fillLabel(const Label& label) {
  state_.form6.Text4->setText(singleText(label.fontSize()));
}

void Selection::fillSize(const Element& element) {
  state_.form6.Text3[0].setText(singleText(element.height()));
  state_.form6.Text3[1].setText(singleText(element.width()));
}

void Selection::fillPlace(const Element& element) {
  state_.form6.Text9[0].setText(singleText(element.top()));
  state_.form6.Text9[1].setText(singleText(element.left()));
}

}  // namespace veneerer
