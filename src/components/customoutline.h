// The custom shapes 7 and 8, whose outline comes from the button's picture.
#pragma once

#include <QImage>

namespace veneerer {

/// The picture with everything outside its outline made transparent. A picture with transparent pixels is its
/// own outline. In any other, the colour of the top left pixel is the background, as far as it is connected
/// with the picture's edge. Large pictures come back smaller: no side is longer than 1024 pixels.
QImage cutOut(const QImage& picture);

}  // namespace veneerer
