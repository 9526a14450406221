// Which elements show the picture that an image reference names.
#pragma once

#include <QHash>
#include <vector>

#include "forms/state.h"

namespace veneerer {

class ShownReferences {
public:
  /// As the layouts of all files that a load reads have it. The state must outlive it.
  explicit ShownReferences(State& state);

  /// What shows the slot's picture after a load, the canvas window and thumbnails included; none for a
  /// reference that is only kept.
  std::vector<Element*> elementsOf(const Element& slot) const { return elements_.value(&slot); }

  /// The element of the canvas by which an operator knows the slot: the first that shows it; null for none.
  const Element* onCanvas(const Element& slot) const;

  /// The slots whose pictures the element shows.
  std::vector<const Element*> slotsOf(const Element& element) const { return slots_.value(&element); }

private:
  void add(const Element& slot, Element* element);

  State& state_;
  QHash<const Element*, std::vector<Element*>> elements_;
  QHash<const Element*, std::vector<const Element*>> slots_;
};

}  // namespace veneerer
