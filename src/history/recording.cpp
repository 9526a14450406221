#include "history/recording.h"

#include <algorithm>

#include "history/restored.h"

namespace veneerer {

void Recording::note(const Change& change) {
  if (!isRestored(state_, change.element, change.property)) return;
  const bool isOrder = change.property == Property::StackOrder;
  Element* subject = isOrder ? change.element.container() : &change.element;
  const Place place(subject, static_cast<int>(change.property));
  if (seen_.contains(place)) return;
  seen_.insert(place);
  if (isOrder)
    noted_.orders.push_back({subject, orderOf(state_, *subject), {}});
  else
    noted_.values.push_back({subject, change.property, change.oldValue, {}});
}

Changes Recording::take() {
  seen_.clear();
  Changes changes = std::exchange(noted_, {});
  for (ValueChange& change : changes.values) change.after = change.element->get(change.property);
  for (OrderChange& change : changes.orders) change.after = orderOf(state_, *change.container);
  std::erase_if(changes.values,
                [](const ValueChange& change) { return isSameValue(change.before, change.after); });
  std::erase_if(changes.orders, [](const OrderChange& change) { return change.before == change.after; });
  return changes;
}

}  // namespace veneerer
