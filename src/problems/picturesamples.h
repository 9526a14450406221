// Small copies of pictures, for judging what is drawn without keeping what was decoded for it.
#pragma once

#include <QCache>
#include <QImage>

#include "images/picture.h"
#include "images/picturetrials.h"

namespace veneerer {

struct PictureSample {
  QSize size;    ///< of the picture itself, pixels; empty for one that can't be decoded
  QImage image;  ///< the picture within 256 x 256 pixels
};

class PictureSamples {
public:
  /// So much work may go into decoding, in the unit of PictureCost.
  explicit PictureSamples(qint64 allowance = kTrialAllowance / 2);

  /// The picture's sample, made once; a null one for no picture or one that can't be decoded. Nothing where
  /// making it would take more than what is left of the allowance. Waits for the decoding. The answer is good
  /// until the next call.
  const PictureSample* of(const Picture& picture);

  /// The picture's size in pixels, empty for none, from the head of its file alone.
  QSize sizeOf(const Picture& picture);

private:
  struct Kept {
    Picture picture;  ///< held, so that its number isn't given again
    PictureSample sample;
    qint64 work = 0;
    bool isMade = false;
  };

  Kept& keptOf(const Picture& picture);

  QCache<quintptr, Kept> kept_;
  qint64 left_;
};

}  // namespace veneerer
