#include "recolouring/storedcolours.h"

#include <QSet>

#include "problems/screenplace.h"
#include "records/coverfile.h"
#include "skin/catalogue.h"

namespace veneerer {

namespace {

using Stored = QSet<std::pair<const Element*, int>>;

// Where reader and writer differ, both have the colour of that line after the next save and load.
void gather(const Layout& layout, Stored& stored) {
  for (const Row& row : layout.rows()) {
    const Field* field = row.field();
    if (!field || field->kind != ValueKind::Colour) continue;
    for (const Slot& slot : {field->into, field->from})
      stored.insert({slot.element, static_cast<int>(slot.property)});
  }
}

}  // namespace

std::vector<ColourPlace> storedColours(State& state) {
  Stored stored;
  for (const SaveEntry& entry : saveOrder()) gather(entry.layout(state), stored);
  gather(coverFile(state, QString(), state.globals.LastCoverIndex->value()), stored);
  std::vector<ColourPlace> places = colourPlaces(state);
  std::erase_if(places, [&](const ColourPlace& place) {
    return !stored.contains({place.element, static_cast<int>(place.property)});
  });
  return places;
}

std::vector<ColourPlace> onScreen(const State& state, const std::vector<ColourPlace>& places, int entry) {
  std::vector<ColourPlace> there;
  for (const ColourPlace& place : places)
    if (&place.element->window() == &state.form1 && screenEntryOf(state, *place.element) == entry)
      there.push_back(place);
  return there;
}

Dress recoloured(const std::vector<ColourPlace>& places, const ColourMap& map) {
  Dress dress;
  for (const ColourPlace& place : places)
    if (const Colour made = map.of(place.colour()); made != place.colour())
      dress.put(*place.element, place.property, made);
  return dress;
}

}  // namespace veneerer
