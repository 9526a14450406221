#include "history/stepname.h"

#include <algorithm>

#include "canvas/description.h"
#include "elements/controls.h"
#include "forms/fieldlabels.h"
#include "history/texts.h"

namespace veneerer {

namespace {

using P = Property;

struct Group {
  const char* name;
  std::vector<Property> properties;
};

// Properties that are changed together and have one name.
const Group kGroups[] = {
    {QT_TRANSLATE_NOOP("History", "Place"), {P::Left, P::Top}},
    {QT_TRANSLATE_NOOP("History", "Size"), {P::Width, P::Height}},
    {QT_TRANSLATE_NOOP("History", "Place and Size"), {P::Left, P::Top, P::Width, P::Height}},
    {QT_TRANSLATE_NOOP("History", "Font"),
     {P::FontName, P::FontSize, P::FontBold, P::FontItalic, P::FontUnderline, P::FontStrikethrough}},
    {QT_TRANSLATE_NOOP("History", "Shape"), {P::ButtonShape, P::Width, P::Height}},
    {QT_TRANSLATE_NOOP("History", "Picture"), {P::Picture, P::Name, P::ButtonShape, P::PictureSize}},
};

template <class T>
void addOnce(std::vector<T>& list, T item) {
  if (std::ranges::find(list, item) == list.end()) list.push_back(item);
}

QString nameOf(const std::vector<Property>& properties) {
  if (properties.size() == 1) return propertyTitle(properties.front());
  for (const Group& group : kGroups)
    if (std::ranges::all_of(properties,
                            [&](Property p) { return std::ranges::count(group.properties, p) > 0; }))
      return HistoryTexts::tr(group.name);
  return HistoryTexts::tr("Properties");
}

// What shows on the canvas counts; a panel only tells of it.
bool isTelling(const Element& element, const Window& canvas) {
  return &element.window() == &canvas;
}

}  // namespace

QString stepName(const State& state, const Changes& changes) {
  std::vector<Element*> elements;
  std::vector<Property> properties;
  const auto gather = [&](bool onCanvas) {
    for (const ValueChange& change : changes.values) {
      if (onCanvas && !isTelling(*change.element, state.form1)) continue;
      addOnce(elements, change.element);
      addOnce(properties, change.property);
    }
  };
  gather(true);
  if (elements.empty()) gather(false);
  if (elements.empty()) return HistoryTexts::tr("Stacking");
  const QString what = elements.size() == 1 ? elementTitle(state, *elements.front())
                                            : HistoryTexts::tr("%1 elements").arg(elements.size());
  return HistoryTexts::tr("%1 of %2").arg(nameOf(properties), what);
}

QString actionName(const State& state, const Element& control) {
  if (!control.family() || &control.window() == &state.form1) return {};
  const bool isNamed = control.kind() == Kind::CommandButton || control.kind() == Kind::CheckBox;
  if (isNamed) return control.as<QString>(Property::Caption);
  return fieldLabel(*control.family());
}

}  // namespace veneerer
