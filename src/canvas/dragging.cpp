#include "canvas/dragging.h"

#include <algorithm>

#include "canvas/draglimits.h"
#include "canvas/placeholders.h"

namespace veneerer {

namespace {

const DragRule* ruleOf(State& state, const Family* family) {
  const auto names = [&](FamilyRef ref) { return &ref(state) == family; };
  const auto found = std::ranges::find_if(
      kDragRules, [&](const DragRule& rule) { return std::ranges::any_of(rule.families, names); });
  return found == std::end(kDragRules) ? nullptr : found;
}

/// One drag step of one element.
class Step {
public:
  Step(State& state, const DragRule& rule, Element& element)
      : state_(state), rule_(rule), element_(element) {}

  void across(float x, float anchor) const {
    if (x > anchor && mayGoRight()) element_.setLeft(element_.left() + (x - anchor));
    if (x < anchor && mayGoLeft()) element_.setLeft(element_.left() - (anchor - x));
  }

  void down(float y, float anchor) const {
    if (y > anchor && mayGoDown()) element_.setTop(element_.top() + (y - anchor));
    if (y < anchor && mayGoUp()) element_.setTop(element_.top() - (anchor - y));
  }

private:
  bool mayGoRight() const {
    return rule_.farLimit == FarLimit::None || element_.left() + element_.width() < container().width();
  }

  bool mayGoDown() const {
    if (rule_.farLimit == FarLimit::None) return true;
    const float edge = rule_.farLimit == FarLimit::TopInsideContainer ? 0 : element_.height();
    return element_.top() + edge < container().height();
  }

  bool mayGoLeft() const { return rule_.nearLimit == NearLimit::None || measured(rule_.leftOf).left() > 0; }
  bool mayGoUp() const { return rule_.nearLimit != NearLimit::LeftAndTop || measured(rule_.topOf).top() > 0; }

  const Element& container() const {
    return element_.container() ? *element_.container() : element_.window();
  }

  const Element& measured(FamilyRef other) const {
    const Element* found = other ? other(state_).find(element_.index()) : nullptr;
    return found ? *found : element_;
  }

  State& state_;
  const DragRule& rule_;
  Element& element_;
};

void showTransparent(Element& label) {
  if (label.as<std::int32_t>(Property::BackStyle) == static_cast<int>(BackStyle::Transparent))
    label.set(Property::BackStyle, static_cast<std::int32_t>(BackStyle::Opaque));
}

}  // namespace

void Dragging::press(Element& element, float x, float y, MouseButton button) {
  if (!element.family() || &element.window() != &state_.form1) return;
  state_.globals.DragAnchorX = x;
  state_.globals.DragAnchorY = y;
  if (button == MouseButton::Left && turnsOpaqueOnPress(state_, *element.family())) showTransparent(element);
  putPressPlaceholder(state_, element);
}

void Dragging::move(Element& element, float x, float y, MouseButton held) {
  if (held != MouseButton::Left) return;
  const DragRule* rule = ruleOf(state_, element.family());
  if (!rule) return;
  const Step step(state_, *rule, element);
  step.across(x, state_.globals.DragAnchorX);
  step.down(y, state_.globals.DragAnchorY);
}

}  // namespace veneerer
