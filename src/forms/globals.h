// The few values of a Skin's state that no element holds.
#pragma once

#include <cstdint>

namespace veneerer {

struct Globals {
  int SectionNumber = 0;  ///< the current edit target, 0 before the first click
  int ElementIndex = 0;   ///< the index, within its family, of the element clicked last
  float DragAnchorX = 0;  ///< where the last press hit its element, twips
  float DragAnchorY = 0;
  std::int32_t CurrentColour = 0;  ///< the colour in hand, 0x00BBGGRR
  int LastCoverIndex = 0;          ///< the index of the last album cover in use; -1 when there is none
  float CoverScale = 1;            ///< multiplies every coordinate of a cover file; nothing changes it
};

}  // namespace veneerer
