// What the operator has selected on the overlay, to be worked on together. It is no click: no Section, no
// field and no element changes by it. It lasts for the run only.
#pragma once

#include <QSet>
#include <functional>
#include <vector>

#include "elements/element.h"

namespace veneerer {

class OverlaySelection {
public:
  /// In the order in which they were selected; the first one leads.
  const std::vector<Element*>& elements() const { return elements_; }
  bool contains(const Element& element) const;

  void select(std::vector<Element*> elements);
  /// Leaves out what doesn't pass.
  void keepOnly(const std::function<bool(const Element&)>& passes);
  /// Takes the element in behind the others, or out.
  void toggle(Element& element);
  void clear() { select({}); }

  /// A locked element isn't grabbed by the mouse, and neither handles nor arrow keys reach it.
  bool isLocked(const Element& element) const { return locked_.contains(&element); }
  void lock(const Element& element, bool isLocked);
  const QSet<const Element*>& locked() const { return locked_; }

  /// Who shows it; there is one at most.
  void setListener(std::function<void()> listener) { listener_ = std::move(listener); }

private:
  void tell() const;

  std::vector<Element*> elements_;
  QSet<const Element*> locked_;
  std::function<void()> listener_;
};

}  // namespace veneerer
