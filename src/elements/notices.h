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

/// A value that an element refused, or took with a remark.
struct Refusal {
  Element& element;
  Property property;
  const QString& text;  ///< in the element's own words, which may have line breaks
};

/// Hands every change of every element to its listeners, in the order in which they subscribed. A listener
/// may change further elements; those changes are told at once, before the first one's later listeners hear
/// of it.
class ChangeNotices {
public:
  using Listener = std::function<void(const Change&)>;
  using RefusalListener = std::function<void(const Refusal&)>;

  /// Returns a number for unsubscribe.
  int subscribe(Listener listener);
  /// Not for a listener while it runs.
  void unsubscribe(int subscription);

  void send(const Change& change) const;

  /// Who tells the operator of refusals; there is one at most.
  void setRefusalListener(RefusalListener listener) { refusalListener_ = std::move(listener); }
  /// Nobody hears of a refusal in the life of a QuietRefusals.
  void send(const Refusal& refusal) const;

private:
  friend class QuietRefusals;

  struct Subscription {
    int number;
    Listener listener;
  };
  /// A deque, because a running listener must stay in its place while it subscribes another one.
  std::deque<Subscription> subscriptions_;
  int lastNumber_ = 0;
  RefusalListener refusalListener_;
  int quiet_ = 0;  ///< how many ask for quiet
};

/// Keeps refusals from being told: they mean nothing to an operator who didn't ask for the value.
class QuietRefusals {
public:
  explicit QuietRefusals(ChangeNotices& notices) : notices_(notices) { ++notices_.quiet_; }
  ~QuietRefusals() { --notices_.quiet_; }
  QuietRefusals(const QuietRefusals&) = delete;
  QuietRefusals& operator=(const QuietRefusals&) = delete;

private:
  ChangeNotices& notices_;
};

}  // namespace veneerer
