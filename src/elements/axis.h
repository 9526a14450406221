// Across or down, where one rule serves both.
#pragma once

#include "elements/property.h"

namespace veneerer {

enum class Axis { X = 0, Y = 1 };

constexpr Property placeOn(Axis axis) {
  return axis == Axis::X ? Property::Left : Property::Top;
}

constexpr Property sizeOn(Axis axis) {
  return axis == Axis::X ? Property::Width : Property::Height;
}

}  // namespace veneerer
