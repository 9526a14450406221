// Layouts of the album covers on the album view.
#pragma once

#include "design/composer.h"

namespace veneerer::design {

struct CoverLayout {
  int count = 10;            ///< covers in use, 1 to 28
  int columns = 0;           ///< 0 for what makes the covers large; ignored when they overlap
  bool dates = false;        ///< room for the year and the genre of each
  bool overlapping = false;  ///< side by side, smaller and lower behind the middle one
};

/// Places the covers, their frames and captions in that area of Picture1(9). Members that the layout doesn't
/// use wait behind those that it does, ready for a layout with more of them.
void composeCovers(Composer& composer, Box area, const CoverLayout& layout);

/// The width of the upright slider beside them, pixels; the letter that goes along with it has one size in
/// all Skins.
int sliderWidth(const Composer& composer);

/// The part of the album view that covers may take.
Box coverArea(const Composer& composer);

}  // namespace veneerer::design
