// How well the captions of the canvas stand out from what is drawn beneath them.
#pragma once

#include <optional>

#include "elements/dress.h"
#include "forms/state.h"
#include "painting/pixels.h"
#include "problems/captions.h"
#include "problems/ground.h"
#include "problems/picturesamples.h"

namespace veneerer {

/// A caption that is seen when its screen is shown. It holds until an element is moved, shown or lettered
/// otherwise; no colour plays a part in it.
struct SeenCaption {
  const Element* element;
  QRectF part;   ///< of the window that the letters can touch, pixels
  double least;  ///< the contrast by which it can be read
};

class CaptionContrasts {
public:
  /// All must outlive it.
  CaptionContrasts(const State& state, PictureSamples& pictures, Captions& captions, const PixelScale& scale)
      : state_(state), captions_(captions), scale_(scale), ground_(state, pictures, scale) {}

  /// Nothing for an element without a caption, or with one that nobody sees.
  std::optional<SeenCaption> seen(const Element& element);

  /// From 1 to 21, in the colours of that dress; nothing where what lies beneath isn't known.
  std::optional<double> of(const SeenCaption& caption, const Dress& dress = {});

private:
  const State& state_;
  Captions& captions_;
  PixelScale scale_;
  Ground ground_;
};

}  // namespace veneerer
