// What is drawn beneath a caption. Pictures are painted from their samples, so it is near enough to judge by
// and the same on every run.
#pragma once

#include <optional>

#include "elements/dress.h"
#include "forms/state.h"
#include "painting/buttonface.h"
#include "painting/pixels.h"
#include "painting/scaledimages.h"
#include "problems/picturesamples.h"

namespace veneerer {

class Ground {
public:
  /// State and samples must outlive it.
  Ground(const State& state, PictureSamples& pictures, const PixelScale& scale)
      : state_(state), pictures_(pictures), scale_(scale) {}
  Ground(const Ground&) = delete;
  Ground& operator=(const Ground&) = delete;

  /// The mean luminance, over that part of the window (pixels), of the element itself without its caption and
  /// of all that lies below it on its screen. Nothing where that isn't known: a picture is beyond what may be
  /// decoded, or more lies there than a stranger's Skin may make anybody paint.
  /// Painted in the colours of that dress.
  std::optional<double> luminance(const Element& element, const QRectF& part, const Dress& dress = {});

private:
  const State& state_;
  PictureSamples& pictures_;
  PixelScale scale_;
  CutOuts cutOuts_;
  ScaledImages images_;
  ButtonFaces faces_{cutOuts_, images_};
};

}  // namespace veneerer
