// Captions as the canvas lays them out.
#pragma once

#include <QRectF>
#include <optional>

#include "elements/button.h"
#include "elements/label.h"
#include "painting/pixels.h"
#include "painting/textlayouts.h"
#include "problems/picturesamples.h"

namespace veneerer {

/// All in pixels, from the element's top left corner.
struct CaptionLayout {
  QRectF room;  ///< what the caption may take
  QSizeF size;  ///< of all its lines
  QRectF ink;   ///< what its letters can touch
};

class Captions {
public:
  /// The samples must outlive the captions.
  Captions(PictureSamples& pictures, const PixelScale& scale) : pictures_(pictures), scale_(scale) {}

  /// Nothing for an element without a caption, or with one that shows nothing.
  std::optional<CaptionLayout> of(const Element& element);

private:
  CaptionLayout ofLabel(const Label& label, const QRectF& face, int fontHeight);
  CaptionLayout ofButton(const Button& button, const QRectF& face, int fontHeight);

  PictureSamples& pictures_;
  PixelScale scale_;
  TextLayouts texts_;
};

}  // namespace veneerer
