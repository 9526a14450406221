// Colours told apart from what the elements say of themselves.
#pragma once

#include <QHash>
#include <vector>

#include "elements/element.h"

namespace veneerer {

struct DressedColour {
  Element* element;
  Property property;
  Colour colour;
};

/// Colours in which elements are painted, or written, in the place of their own: so they can be looked at
/// before anything is changed.
class Dress {
public:
  /// Of one property one colour at most.
  void put(Element& element, Property property, Colour colour);

  bool isEmpty() const { return colours_.empty(); }
  const std::vector<DressedColour>& colours() const { return colours_; }

  /// The dress's colour of that property, else the element's own.
  Colour of(const Element& element, Property property) const;

private:
  using Place = std::pair<const Element*, int>;

  std::vector<DressedColour> colours_;
  QHash<Place, Colour> byPlace_;
};

}  // namespace veneerer
