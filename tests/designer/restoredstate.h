// All that an undo brings back, to be compared.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "canvas/screens.h"
#include "elements/kinds.h"
#include "history/changes.h"
#include "history/restored.h"

namespace veneerer::test {

class RestoredState {
public:
  /// Without those elements.
  explicit RestoredState(State& state, const std::vector<const Element*>& without = {}) : without_(without) {
    std::vector<Window*> windows = state.windows();
    windows.insert(windows.end(), {&state.names, &state.globals});
    for (const Window* window : windows) {
      add(state, *window);
      for (const Family* family : window->families())
        for (const Element* element : family->members()) add(state, *element);
    }
    for (const auto& [element, property] : slots_) values_.push_back(element->get(property));
    for (const Element* container : containers_) orders_.push_back(orderOf(state, *container));
  }

  /// What differs in the other one, a line for each property; empty when nothing does.
  std::string difference(const RestoredState& other) const {
    std::string told = orders_ == other.orders_ ? "" : "stacking\n";
    for (std::size_t i = 0; i < slots_.size() && told.size() < 500; ++i)
      if (!isSameValue(values_[i], other.values_[i]))
        told += (slots_[i].first->key() + ' ' + propertyName(slots_[i].second) + '\n').toStdString();
    return told;
  }

private:
  void add(const State& state, const Element& element) {
    if (std::ranges::count(without_, &element) > 0) return;
    for (const PropertyDefault& each : propertiesOf(element.kind()))
      if (isRestored(state, element, each.property)) slots_.push_back({&element, each.property});
    if (!element.children().empty()) containers_.push_back(&element);
  }

  std::vector<const Element*> without_;
  std::vector<std::pair<const Element*, Property>> slots_;
  std::vector<const Element*> containers_;
  std::vector<Value> values_;
  std::vector<std::vector<Element*>> orders_;
};

}  // namespace veneerer::test
