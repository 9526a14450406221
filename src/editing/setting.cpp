#include "editing/setting.h"

#include "elements/button.h"
#include "elements/window.h"

namespace veneerer {

namespace {

using P = Property;

// A shape ahead of the picture size, which a custom shape refuses.
constexpr P kLook[] = {P::BackColor,     P::ForeColor,         P::BackStyle,   P::Alignment,
                       P::FontName,      P::FontSize,          P::FontBold,    P::FontItalic,
                       P::FontUnderline, P::FontStrikethrough, P::ButtonShape, P::ButtonStyle,
                       P::GradientColor, P::GradientMode};

bool isSize(Property property) {
  return property == P::Width || property == P::Height;
}

// Whether a panel shows what lies beneath it is the built-in design's business; no file holds it.
bool isOfPanels(const Element& element, Property property) {
  return element.kind() == Kind::PictureBox && property == P::BackStyle;
}

}  // namespace

void setProperty(Element& element, Property property, const Value& value) {
  if (element.kind() != Kind::Button || !isSize(property)) {
    element.set(property, value);
    return;
  }
  // A shape that doesn't come back says nothing of itself: the size was asked for.
  const QuietRefusals quiet(element.window().board());
  auto& button = cast<Button>(element);
  const int shape = button.buttonShape();
  button.setButtonShape(0);
  button.set(property, value);
  button.setButtonShape(shape);
}

CopiedLook lookOf(const Element& element) {
  CopiedLook look;
  for (const Property property : kLook)
    if (element.has(property)) look.emplace_back(property, element.get(property));
  return look;
}

void giveLook(const CopiedLook& look, Element& to) {
  for (const auto& [property, value] : look)
    if (to.has(property) && !isOfPanels(to, property)) setProperty(to, property, value);
}

}  // namespace veneerer
