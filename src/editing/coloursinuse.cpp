#include "editing/coloursinuse.h"

#include <QHash>
#include <algorithm>

namespace veneerer {

namespace {

constexpr Property kColours[] = {Property::BackColor, Property::ForeColor, Property::GradientColor};

void gather(const Family& family, std::vector<ColourPlace>& places) {
  for (Element* element : family.members())
    for (const Property property : kColours)
      if (element->has(property) && !element->as<Colour>(property).isSystem())
        places.push_back({element, property});
}

}  // namespace

std::vector<ColourPlace> colourPlaces(const State& state) {
  std::vector<ColourPlace> places;
  for (const Family* family : state.form1.families()) gather(*family, places);
  for (const Family* family : std::initializer_list<const Family*>{
           &state.form6.Label5, &state.form6.lvButtons_H5, &state.form6.Picture1})
    gather(*family, places);
  return places;
}

std::vector<ColourUse> usesOf(const std::vector<ColourPlace>& places) {
  QHash<std::int32_t, int> counts;
  for (const ColourPlace& place : places) ++counts[place.colour().plain().number()];
  std::vector<ColourUse> uses;
  for (auto it = counts.begin(); it != counts.end(); ++it) uses.push_back({Colour(it.key()), it.value()});
  std::ranges::sort(uses, [](const ColourUse& a, const ColourUse& b) {
    return a.count != b.count ? a.count > b.count : a.colour.number() < b.colour.number();
  });
  return uses;
}

std::vector<ColourUse> coloursInUse(const State& state) {
  return usesOf(colourPlaces(state));
}

}  // namespace veneerer
