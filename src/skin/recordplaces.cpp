#include "skin/recordplaces.h"

#include <algorithm>

#include "records/coverfile.h"
#include "records/linewalk.h"
#include "skin/catalogue.h"

namespace veneerer {

namespace {

void addWritten(RecordPlaces& places, const Layout& layout, const QString& file) {
  places.add(layout, file, writtenLines(layout), RecordPlaces::Side::Written);
}

const SaveEntry* saveEntryOf(MakeLayout layout) {
  const auto found = std::ranges::find(saveOrder(), layout, &SaveEntry::layout);
  return found == saveOrder().end() ? nullptr : &*found;
}

}  // namespace

void RecordPlaces::add(const Layout& layout, const QString& file, const std::vector<int>& lines, Side side) {
  const std::size_t count = std::min(lines.size(), layout.size());
  for (std::size_t i = 0; i < count; ++i)
    if (lines[i] > 0) addRow(layout.rows()[i], {file, lines[i], Property::Name}, side);
}

void RecordPlaces::add(const RecordPlaces& others) {
  for (auto of = others.byElement_.cbegin(); of != others.byElement_.cend(); ++of)
    byElement_[of.key()] += of.value();
}

void RecordPlaces::addRow(const Row& row, RecordPlace place, Side side) {
  const auto hold = [&](const Element& element, Property property) {
    place.property = property;
    byElement_[element.key()].append(place);
  };
  if (const Field* field = row.field()) {
    const Slot& slot = side == Side::Read ? field->into : field->from;
    hold(*slot.element, slot.property);
  }
  const Reference* reference = row.reference();
  if (!reference) return;
  hold(side == Side::Read ? *reference->into : *reference->from, Property::Name);
  const bool isOwn = side == Side::Read || reference->into == reference->from;
  if (reference->button && isOwn) hold(*reference->button, Property::Picture);
  for (const Element* box : reference->boxes)
    if (box) hold(*box, Property::Picture);
}

std::optional<RecordPlace> RecordPlaces::of(const Element& element, Property property) const {
  const QList<RecordPlace> places = of(element);
  const auto last = std::find_if(places.rbegin(), places.rend(),
                                 [&](const RecordPlace& place) { return place.property == property; });
  return last == places.rend() ? std::nullopt : std::optional(*last);
}

std::vector<int> writtenLines(const Layout& layout) {
  std::vector<int> lines(layout.size());
  LineWalk walk(layout.rows());
  for (int line = 1; walk.next(); ++line) lines[walk.index()] = line;
  return lines;
}

RecordPlaces writtenPlaces(State& state, const QString& coverFileName) {
  RecordPlaces places;
  const auto addEntry = [&](const SaveEntry& entry) {
    const Layout layout = entry.layout(state);
    addWritten(places, layout, savedName(entry, layout));
  };
  for (const SaveEntry& entry : saveOrder())
    if (!isLoaded(entry)) addEntry(entry);
  const int lastCover = state.globals.LastCoverIndex->value();
  if (!coverFileName.isEmpty()) addWritten(places, coverFile(state, coverFileName, lastCover), coverFileName);
  for (const LoadEntry& entry : loadOrder())
    if (const SaveEntry* written = saveEntryOf(entry.layout)) addEntry(*written);
  return places;
}

}  // namespace veneerer
