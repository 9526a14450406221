#include "history/changes.h"

#include <algorithm>

#include "canvas/screens.h"

namespace veneerer {

namespace {

void add(std::vector<ValueChange>& changes, const ValueChange& later) {
  const auto found = std::ranges::find_if(changes, [&](const ValueChange& change) {
    return change.element == later.element && change.property == later.property;
  });
  if (found == changes.end()) return changes.push_back(later);
  found->after = later.after;
  if (isSameValue(found->before, found->after)) changes.erase(found);
}

void add(std::vector<OrderChange>& changes, const OrderChange& later) {
  const auto found = std::ranges::find(changes, later.container, &OrderChange::container);
  if (found == changes.end()) return changes.push_back(later);
  found->after = later.after;
  if (found->before == found->after) changes.erase(found);
}

Value readAnew(State& state, const Value& value) {
  const auto* picture = std::get_if<Picture>(&value);
  return picture && !picture->path().isEmpty() ? Value(state.pictures.load(picture->path())) : value;
}

// The screens keep their places among the others.
void stack(State& state, Element& container, const std::vector<Element*>& wanted) {
  std::vector<Element*> order = container.children();
  auto next = wanted.begin();
  for (Element*& child : order)
    if (!isScreen(state, *child)) child = *next++;
  for (std::size_t place = 0; place < order.size(); ++place)
    order[place]->setStackOrder(static_cast<int>(place));
}

}  // namespace

bool isSameValue(const Value& a, const Value& b) {
  const auto* first = std::get_if<Picture>(&a);
  const auto* second = std::get_if<Picture>(&b);
  if (first && second && !first->path().isEmpty()) return first->path() == second->path();
  return a == b;
}

std::vector<Element*> orderOf(const State& state, const Element& container) {
  std::vector<Element*> order;
  for (Element* child : container.children())
    if (!isScreen(state, *child)) order.push_back(child);
  return order;
}

void Changes::add(const Changes& later) {
  for (const ValueChange& change : later.values) veneerer::add(values, change);
  for (const OrderChange& change : later.orders) veneerer::add(orders, change);
}

void apply(State& state, const Changes& changes, Way way) {
  const ViewsOnly views(state.board);
  for (const ValueChange& change : changes.values)
    change.element->restore(change.property,
                            readAnew(state, way == Way::Back ? change.before : change.after));
  for (const OrderChange& change : changes.orders)
    stack(state, *change.container, way == Way::Back ? change.before : change.after);
}

}  // namespace veneerer
