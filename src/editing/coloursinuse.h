// The palette of a Skin: which colours its elements have, and where.
#pragma once

#include <vector>

#include "forms/state.h"

namespace veneerer {

/// A property that holds a colour.
struct ColourPlace {
  Element* element;
  Property property;

  Colour colour() const { return element->as<Colour>(property); }
  bool operator==(const ColourPlace&) const = default;
};

/// Where the elements of the canvas and the samples in "Tools" have their colours, system colours left out.
std::vector<ColourPlace> colourPlaces(const State& state);

struct ColourUse {
  Colour colour;  ///< a plain one
  int count;      ///< of the properties that have it
};

/// The colours of these places, the most frequent first.
std::vector<ColourUse> usesOf(const std::vector<ColourPlace>& places);

/// The colours of all colourPlaces().
std::vector<ColourUse> coloursInUse(const State& state);

}  // namespace veneerer
