// The one notice on which repaint, change handling and the panels hang.
#pragma once

#include <deque>
#include <functional>

#include "elements/property.h"
#include "elements/value.h"

namespace veneerer {

class Element;

struct Change {
  Element& element;
  Property property;
  const Value& oldValue;
};

/// Hands every change of every element to its listeners, in the order in which they subscribed. A listener
/// may change further elements; those changes are told at once, before the first one's later listeners hear
/// of it.
class ChangeNotices {
public:
  using Listener = std::function<void(const Change&)>;

  /// Returns a number for unsubscribe.
  int subscribe(Listener listener);
  /// Not for a listener while it runs.
  void unsubscribe(int subscription);

  void send(const Change& change) const;

private:
  struct Subscription {
    int number;
    Listener listener;
  };
  /// A deque, because a running listener must stay in its place while it subscribes another one.
  std::deque<Subscription> subscriptions_;
  int lastNumber_ = 0;
};

}  // namespace veneerer
