// The few values of a Skin's state that no window shows.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "elements/controls.h"
#include "elements/family.h"
#include "elements/window.h"
#include "forms/counts.h"

namespace veneerer {

/// A number as an index of the last cover in use: the nearest one from -1, none, to kHighestCover.
inline int toLastCoverIndex(double number) {
  return static_cast<int>(std::nearbyint(std::clamp(number, -1.0, double(kHighestCover))));
}

/// The index of the last album cover in use, -1 (none) to kHighestCover.
class CoverIndex : public Element {
public:
  CoverIndex(Window& window, Family* family, int index) : Element(Kind::CoverIndex, window, family, index) {}

  int value() const { return as<std::int32_t>(Property::Value); }
  void setValue(int index) { set(Property::Value, index); }

  QString rangeFault(Property property, const Value& value) const override;
};

class Globals : public Window {
public:
  explicit Globals(Switchboard& board) : Window(board, "Globals") {}

  int SectionNumber = 0;  ///< the current edit target, 0 before the first click
  int ElementIndex = 0;   ///< the index, within its family, of the element clicked last
  float DragAnchorX = 0;  ///< where the last press hit its element, twips
  float DragAnchorY = 0;
  Colour CurrentColour;  ///< the colour in hand, 0x00BBGGRR
  float CoverScale = 1;  ///< multiplies every coordinate of a cover file; nothing changes it

  Single<CoverIndex> LastCoverIndex{*this, "LastCoverIndex"};
  /// The name of the Skin that was in hand before this one, whose values stand where this one's files have
  /// none; empty for the first one.
  Single<TextBox> SkinBefore{*this, "SkinBefore"};
};

}  // namespace veneerer
