// Where everything hangs that answers a change or a click. Handlers act on it as the system tells; views only
// show what has become of it.
#pragma once

#include <QHash>
#include <functional>
#include <memory>
#include <vector>

#include "elements/property.h"
#include "elements/value.h"

namespace veneerer {

class Element;
class Family;
class Window;

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

/// Keeps a listener attached for as long as it lives. A listener that runs may let go of itself.
using Attachment = std::shared_ptr<const void>;

/// Hands every change and every click to its listeners: the handlers first, then the views, each in the order
/// in which they were attached. A listener may change further elements; those changes are told at once,
/// before the first one's later listeners hear of it. One that is attached meanwhile hears of the next
/// change.
class Switchboard {
public:
  using Handler = std::function<void(Element&)>;
  using View = std::function<void(const Change&)>;
  using Recorder = std::function<void(const Change&)>;
  using RefusalListener = std::function<void(const Refusal&)>;

  Switchboard() = default;
  Switchboard(const Switchboard&) = delete;
  Switchboard& operator=(const Switchboard&) = delete;

  /// Handles a change of that property, of one element or of any member of a family.
  [[nodiscard]] Attachment onChange(const Element& element, Property property, Handler handler);
  [[nodiscard]] Attachment onChange(const Family& family, Property property, Handler handler);

  /// Handles a click on one element, on any member of a family, or on anything in a window.
  [[nodiscard]] Attachment onClick(const Element& element, Handler handler);
  [[nodiscard]] Attachment onClick(const Family& family, Handler handler);
  [[nodiscard]] Attachment onClickWithin(const Window& window, Handler handler);
  /// Handles a double click; the clicks that it is made of are told too.
  [[nodiscard]] Attachment onDoubleClick(const Element& element, Handler handler);

  /// Shows what becomes of one element, or of all.
  [[nodiscard]] Attachment watch(const Element& element, View view);
  [[nodiscard]] Attachment watch(View view);

  /// Who keeps what is replaced, to put it back one day; there is one at most. It hears of every value that
  /// is stored, also of those that no listener is told of, ahead of all listeners.
  void recordWith(Recorder recorder) { recorder_ = std::move(recorder); }

  /// Who tells the operator of refusals; there is one at most.
  void tellRefusals(RefusalListener listener) { refusalListener_ = std::move(listener); }

  void record(const Change& change) const;
  void tell(const Change& change);
  /// Nobody hears of a refusal in the life of a QuietRefusals.
  void tell(const Refusal& refusal) const;
  void click(Element& element);
  void doubleClick(Element& element);

private:
  friend class QuietRefusals;
  friend class ViewsOnly;

  /// What a listener listens to: an element, a family or a window, and what happens there.
  struct Topic {
    const void* subject;
    int event;
    bool operator==(const Topic&) const = default;
  };
  friend size_t qHash(const Topic& topic, size_t seed) {
    return qHashMulti(seed, topic.subject, topic.event);
  }

  template <class Act>
  struct Listener {
    int number;
    std::weak_ptr<const void> attachment;
    Act act;
  };
  template <class Act>
  using Listeners = std::vector<std::shared_ptr<const Listener<Act>>>;

  template <class Act>
  Attachment attach(Listeners<Act>& listeners, Act act);
  Attachment attach(const void* subject, int event, Handler handler);
  void handle(std::initializer_list<Topic> topics, Element& element);

  QHash<Topic, Listeners<Handler>> handlers_;
  QHash<const Element*, Listeners<View>> views_;
  Listeners<View> viewsOfAll_;
  int lastNumber_ = 0;
  Recorder recorder_;
  RefusalListener refusalListener_;
  int quiet_ = 0;      ///< how many ask for quiet
  int viewsOnly_ = 0;  ///< how many tell views alone
};

/// Keeps refusals from being told: they mean nothing to an operator who didn't ask for the value.
class QuietRefusals {
public:
  explicit QuietRefusals(Switchboard& board) : board_(board) { ++board_.quiet_; }
  ~QuietRefusals() { --board_.quiet_; }
  QuietRefusals(const QuietRefusals&) = delete;
  QuietRefusals& operator=(const QuietRefusals&) = delete;

private:
  Switchboard& board_;
};

/// Puts values into place without consequences: views hear of the changes in its life, handlers don't.
class ViewsOnly {
public:
  explicit ViewsOnly(Switchboard& board) : board_(board) { ++board_.viewsOnly_; }
  ~ViewsOnly() { --board_.viewsOnly_; }
  ViewsOnly(const ViewsOnly&) = delete;
  ViewsOnly& operator=(const ViewsOnly&) = delete;

private:
  Switchboard& board_;
};

}  // namespace veneerer
