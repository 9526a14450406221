// What an action changed, both ways.
#pragma once

#include <vector>

#include "forms/state.h"

namespace veneerer {

/// A value that was replaced.
struct ValueChange {
  Element* element;
  Property property;
  Value before;
  Value after;
};

/// Siblings that were stacked anew, from the bottom to the top. Screens are left out: which one stands in
/// front is no part of the document.
struct OrderChange {
  Element* container;
  std::vector<Element*> before;
  std::vector<Element*> after;
};

struct Changes {
  std::vector<ValueChange> values;
  std::vector<OrderChange> orders;

  bool isEmpty() const { return values.empty() && orders.empty(); }

  /// Takes in what was changed later. What is again as it was at first is no change any more.
  void add(const Changes& later);
};

/// Whether the values are the same for an undo: a picture of a file is its path.
bool isSameValue(const Value& a, const Value& b);

/// The children of a container that aren't screens, from the bottom to the top.
std::vector<Element*> orderOf(const State& state, const Element& container);

enum class Way { Back, Forth };

/// Puts the values of before, or of after, into place; nothing follows from them. A picture of a file is that
/// path, read anew.
void apply(State& state, const Changes& changes, Way way);

}  // namespace veneerer
