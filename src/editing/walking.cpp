#include "editing/walking.h"

#include <algorithm>

#include "painting/hittest.h"

namespace veneerer {

namespace {

std::vector<Element*> inReadingOrder(State& state) {
  const QRectF canvas(0, 0, state.form1.width(), state.form1.height());
  std::vector<Element*> shown;
  for (const Family* family : state.form1.families())
    for (Element* element : family->members())
      if (isShown(*element) && windowRect(*element).intersects(canvas)) shown.push_back(element);
  std::ranges::stable_sort(shown, {}, [](const Element* element) {
    const QPointF corner = windowRect(*element).topLeft();
    return std::pair(corner.y(), corner.x());
  });
  return shown;
}

}  // namespace

Element* neighbourOf(State& state, const Element* element, int step) {
  const std::vector<Element*> row = inReadingOrder(state);
  if (row.empty()) return nullptr;
  const auto at = std::ranges::find(row, element);
  if (at == row.end()) return step > 0 ? row.front() : row.back();
  const auto count = static_cast<std::ptrdiff_t>(row.size());
  return row[static_cast<std::size_t>((at - row.begin() + step + count) % count)];
}

}  // namespace veneerer
