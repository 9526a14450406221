#include "editing/outline.h"

#include <algorithm>

#include "canvas/description.h"
#include "canvas/screens.h"
#include "canvas/sections.h"
#include "painting/hittest.h"

namespace veneerer {

namespace {

void gather(State& state, const Element& container, double x, double y, std::vector<Element*>& found) {
  const std::vector<Element*>& children = container.children();
  for (auto at = children.rbegin(); at != children.rend(); ++at) {
    Element& child = **at;
    if (isScreen(state, child) && !child.isVisible()) continue;
    const double innerX = x - child.left();
    const double innerY = y - child.top();
    if (innerX < 0 || innerY < 0 || innerX >= child.width() || innerY >= child.height()) continue;
    gather(state, child, innerX, innerY, found);
    found.push_back(&child);
  }
}

}  // namespace

std::vector<OutlineEntry> outlineOf(State& state) {
  std::vector<std::pair<int, OutlineEntry>> ordered;
  for (const Family* family : state.form1.families())
    for (Element* element : family->members())
      ordered.push_back({entryHolding(state, *element),
                         {element, screenName(state, *element), elementTitle(state, *element),
                          shortName(*element), sectionOf(state, *family)}});
  std::ranges::stable_sort(ordered, {}, [](const auto& entry) { return entry.first; });
  std::vector<OutlineEntry> entries;
  entries.reserve(ordered.size());
  for (auto& entry : ordered) entries.push_back(std::move(entry.second));
  return entries;
}

QStringList queryWords(const QString& query) {
  return query.simplified().split(u' ', Qt::SkipEmptyParts);
}

bool matches(const OutlineEntry& entry, const QStringList& words) {
  const auto isIn = [&](const QString& word) {
    return entry.title.contains(word, Qt::CaseInsensitive) || entry.key.contains(word, Qt::CaseInsensitive) ||
           entry.screen.contains(word, Qt::CaseInsensitive) ||
           (entry.section > 0 && word == QString::number(entry.section));
  };
  return std::ranges::all_of(words, isIn);
}

std::vector<Element*> elementsAt(State& state, float x, float y) {
  std::vector<Element*> found;
  gather(state, state.form1, x, y, found);
  // Nobody sees it, wherever it stands in the stacking order.
  std::stable_partition(found.begin(), found.end(),
                        [](const Element* element) { return !isSeeThrough(*element); });
  return found;
}

}  // namespace veneerer
