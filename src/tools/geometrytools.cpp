#include "tools/geometrytools.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "canvas/sections.h"
#include "elements/numbers.h"
#include "tools/geometrytables.h"

namespace veneerer {

namespace {

constexpr FamilyRef kScreens = kCanvas<&Form1::Picture1>;
constexpr IndexRange kPlacedScreens{0, 11};

/// The family and the members that a command is for.
struct Target {
  const Family* family = nullptr;
  IndexRange range;

  Element* member(int index) const { return family ? family->find(index) : nullptr; }
};

IndexRange halfInHand(State& state, GeometryTool tool, const Family& family, IndexRange first) {
  const auto second = std::ranges::find_if(kSecondHalves, [&](const SecondHalf& half) {
    return half.tool == tool && &half.family(state) == &family;
  });
  if (second == std::end(kSecondHalves)) return first;
  const int index = state.globals.ElementIndex;
  if (first.holds(index)) return first;
  return second->range.holds(index) ? second->range : IndexRange{};
}

IndexRange rangeOf(State& state, GeometryTool tool, const Family& family, Axis axis) {
  const auto isOurs = [&](const auto& row) { return &row.family(state) == &family; };
  const auto row = std::ranges::find_if(kFamilyRanges, isOurs);
  if (row == std::end(kFamilyRanges)) return {};
  const auto down = std::ranges::find_if(
      kDownRanges, [&](const DownRange& range) { return range.tool == tool && isOurs(range); });
  if (axis == Axis::Y && down != std::end(kDownRanges)) return down->range;
  return halfInHand(state, tool, family, row->of(tool));
}

Target targetOf(State& state, GeometryTool tool, Axis axis = Axis::X) {
  for (const CrossedRange& crossed : kCrossedRanges)
    if (crossed.tool == tool && isInHand(state, crossed.inHand))
      return {&crossed.family(state), crossed.range};
  const Family* family = familyOfSection(state, state.globals.SectionNumber);
  if (!family) return {};
  return {family, rangeOf(state, tool, *family, axis)};
}

/// Runs up to the first missing member: a range may go past its array, and what was changed till then stays.
void forEach(const Target& target, const std::function<void(Element&)>& act) {
  for (int i = target.range.first; i <= target.range.last; ++i) {
    Element* element = target.member(i);
    if (!element) return;
    act(*element);
  }
}

/// Sums of huge values have no place on the canvas.
void setPlace(Element& element, Axis axis, float twips) {
  if (std::isfinite(twips)) element.set(placeOn(axis), twips);
}

float numberIn(const TextBox& field) {
  return leadingSingle(field.text());
}

/// The field's value, floored to 1 in the field itself.
float gridIn(TextBox& field) {
  if (numberIn(field) < 1) field.setText(QStringLiteral("1"));
  return numberIn(field);
}

void snap(Element& element, Axis axis, float grid) {
  const double line = std::trunc(std::nearbyint(element.as<float>(placeOn(axis))) / std::nearbyint(grid));
  setPlace(element, axis, static_cast<float>(grid * line));
}

void setRow(Element& button, Property property, const ComboBox& list) {
  if (list.listIndex() >= 0) button.set(property, list.listIndex());
}

}  // namespace

bool hasRange(const State& state, GeometryTool tool, const Family& family) {
  const auto isCrossed = [&](const CrossedRange& row) {
    return row.tool == tool && &row.inHand(state) == &family;
  };
  const auto row =
      std::ranges::find_if(kFamilyRanges, [&](const FamilyRanges& r) { return &r.family(state) == &family; });
  return std::ranges::any_of(kCrossedRanges, isCrossed) ||
         (row != std::end(kFamilyRanges) && !row->of(tool).isEmpty());
}

void makeSameSize(State& state) {
  const float height = numberIn(state.form6.Text3[0]);
  const float width = numberIn(state.form6.Text3[1]);
  forEach(targetOf(state, GeometryTool::Size), [=](Element& element) {
    element.setHeight(height);
    element.setWidth(width);
  });
}

void makeSamePlace(State& state) {
  if (!isInHand(state, kScreens)) return;
  const float top = numberIn(state.form6.Text9[0]);
  const float left = numberIn(state.form6.Text9[1]);
  forEach({&state.form1.Picture1, kPlacedScreens}, [=](Element& screen) {
    screen.setTop(top);
    screen.setLeft(left);
  });
}

void shift(State& state, Axis axis) {
  const float step = numberIn(state.form6.Text5[static_cast<int>(axis)]);
  forEach(targetOf(state, GeometryTool::Shift, axis),
          [=](Element& element) { setPlace(element, axis, element.as<float>(placeOn(axis)) + step); });
}

void align(State& state, Axis axis) {
  const Target target = targetOf(state, GeometryTool::Align, axis);
  const Element* anchor = target.member(state.globals.ElementIndex);
  if (!anchor) return;
  const float line = anchor->as<float>(placeOn(axis));
  forEach(target, [=](Element& element) { element.set(placeOn(axis), line); });
}

// Two oddities, both required: the size that is added is the element's own and not its neighbour's, and both
// commands take their gap from Text6(0), so that "Y Space:" has no effect.
void space(State& state, Axis axis) {
  const float gap = numberIn(state.form6.Text6[0]);
  const Target target = targetOf(state, GeometryTool::Space, axis);
  forEach(target, [&](Element& element) {
    const Element* neighbour = target.member(element.index() - 1);
    if (!neighbour) return;
    setPlace(element, axis, neighbour->as<float>(placeOn(axis)) + element.as<float>(sizeOn(axis)) + gap);
  });
}

void snapToGrid(State& state) {
  const Target target = targetOf(state, GeometryTool::Grid);
  if (target.range.isEmpty()) return;
  const float gridX = gridIn(state.form6.Text10[0]);
  const float gridY = gridIn(state.form6.Text10[1]);
  forEach(target, [=](Element& element) {
    snap(element, Axis::X, gridX);
    snap(element, Axis::Y, gridY);
  });
}

// Only the menu's image names are emptied too; for the other families the old reference stays and is saved
// back, which is required.
void clearImages(State& state) {
  const Target target = targetOf(state, GeometryTool::Clear);
  const bool isMenu = target.family == &state.form1.lvButtons_H1;
  forEach(target, [&](Element& button) {
    button.set(Property::Picture, Picture());
    if (isMenu) state.names.of(button)->setValue(StoredValue());
  });
}

void copyStyles(State& state) {
  forEach(targetOf(state, GeometryTool::Styles), [&](Element& button) {
    setRow(button, Property::ButtonShape, *state.form6.Combo1);
    setRow(button, Property::ButtonStyle, *state.form6.Combo2);
  });
}

}  // namespace veneerer
