// A button without its caption and its small picture: the part that is costly to draw and alike on many
// buttons.
#pragma once

#include <QCache>
#include <QColor>
#include <QImage>

#include "painting/customoutline.h"
#include "painting/scaledimages.h"

namespace veneerer {

inline constexpr int kGradientModeCount = 5;
/// From this PictureSize on, a picture is part of the face: 3 is stretched over it, 4 keeps its proportions
/// in the middle of it.
inline constexpr int kFirstCoveringSize = 3;

/// All that a face depends on, numbers out of range included. It is the key under which a face is kept.
struct FaceLook {
  QSize size;        ///< device pixels
  QRect part = {};   ///< of the face, what is to be drawn; null for all of it
  double scale = 1;  ///< device pixels per pixel
  int shape = 0;     ///< 0 to 8, others count as 0
  int style = 0;     ///< 0 to 7, others count as 0
  /// 0 plain; from the back colour to the second one: 1 left to right, 2 top to bottom, 3 top left to bottom
  /// right, 4 bottom left to top right. Others count as 0.
  int gradient = 0;
  QRgb back = 0;
  QRgb second = 0;
  int pictureSize = 0;    ///< of a picture that isn't part of the face, 0
  qint64 pictureKey = 0;  ///< QImage::cacheKey() of the picture that is part of the face, 0 for none
  bool hover = false;
  bool pressed = false;
  bool enabled = true;

  bool operator==(const FaceLook&) const = default;
};

size_t qHash(const FaceLook& look, size_t seed = 0);

/// The largest face that is drawn as a whole and kept, device pixels. Of a larger one only what is seen is
/// drawn, each time anew; and of one above the other bounds, without and with a picture, where little of it
/// is seen.
inline constexpr qint64 kLargestKeptFace = 1024LL * 1024;
inline constexpr qint64 kSmallFace = 32LL * 1024;
inline constexpr qint64 kSmallPictureFace = 256LL * 1024;

/// The part of a face that has to be drawn for those device pixels of it to be seen; null for one that is
/// drawn as a whole. The size is that of its picture, empty for none.
QRect partOfFace(const FaceLook& look, QSize picture, const QRectF& seen);

/// True for a face that is cut from its picture.
bool isCutOut(const FaceLook& look);

/// Draws a face of a keepable size, or its part; its alpha is the button's outline. The custom shapes are cut
/// from the picture, see cutOutRect(); without one they are rectangles. The picture comes with its own size
/// and, for a cut face, as cutOut() has left it.
QImage drawFace(const FaceLook& look, const QImage& picture, QSize pictureSize);

class ButtonFaces {
public:
  /// Both must outlive the faces. Pictures are scaled within the images' allowance.
  ButtonFaces(CutOuts& cutOuts, ScaledImages& images);

  /// Whether the face of that look is at hand as a whole.
  bool holds(const FaceLook& look) const { return made_.contains(look); }
  /// The face of that look; the picture is the one whose key the look holds, null for none. Where scaling it
  /// is beyond the allowance it is shown coarsely, and the face isn't kept.
  QImage face(const FaceLook& look, const QImage& picture);

private:
  QCache<FaceLook, QImage> made_;
  CutOuts& cutOuts_;
  ScaledImages& images_;
};

}  // namespace veneerer
