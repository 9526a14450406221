#include "editing/coloursinuse.h"

#include <QHash>
#include <algorithm>

namespace veneerer {

namespace {

constexpr Property kColours[] = {Property::BackColor, Property::ForeColor, Property::GradientColor};

void count(const Family& family, QHash<std::int32_t, int>& counts) {
  for (const Element* element : family.members())
    for (const Property property : kColours)
      if (element->has(property)) {
        const Colour colour = element->as<Colour>(property);
        if (!colour.isSystem()) ++counts[colour.plain().number()];
      }
}

}  // namespace

std::vector<ColourUse> coloursInUse(const State& state) {
  QHash<std::int32_t, int> counts;
  for (const Family* family : state.form1.families()) count(*family, counts);
  for (const Family* family : std::initializer_list<const Family*>{
           &state.form6.Label5, &state.form6.lvButtons_H5, &state.form6.Picture1})
    count(*family, counts);
  std::vector<ColourUse> uses;
  for (auto it = counts.begin(); it != counts.end(); ++it) uses.push_back({Colour(it.key()), it.value()});
  std::ranges::sort(uses, [](const ColourUse& a, const ColourUse& b) {
    return a.count != b.count ? a.count > b.count : a.colour.number() < b.colour.number();
  });
  return uses;
}

}  // namespace veneerer
