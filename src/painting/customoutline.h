// The custom shapes 7 and 8, whose outline comes from the button's picture.
#pragma once

#include <QCache>
#include <QImage>
#include <QRectF>

namespace veneerer {

/// The picture with everything outside its outline made transparent. A picture with transparent pixels is its
/// own outline. In any other, the colour of the top left pixel is the background, as far as it is connected
/// with the picture's edge; where that is all, nothing is cut. Large pictures come back smaller: no side is
/// longer than 1024 pixels.
QImage cutOut(const QImage& picture);

/// False for a pixel that is too faint to be seen: what lies beneath it takes the mouse.
constexpr bool isSeen(QRgb pixel) {
  constexpr int kFaintest = 16;  // of 255
  return qAlpha(pixel) >= kFaintest;
}

/// Where the picture of a custom shape lies on a face of that size, which begins at the origin: shape 7
/// stretched over it, shape 8 in its own size in the middle, made smaller where it doesn't fit. Both sizes in
/// device pixels, of which so many make a pixel.
QRectF cutOutRect(int shape, QSize picture, QSizeF face, double devicePixelsPerPixel);

/// Cut-outs, made once.
class CutOuts {
public:
  CutOuts();

  /// cutOut() of the picture.
  QImage of(const QImage& picture);

private:
  QCache<qint64, QImage> made_;  // by the picture's key
};

}  // namespace veneerer
