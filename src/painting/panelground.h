// What a panel without a colour of its own is painted with.
#pragma once

#include <QColor>
#include <QRectF>
#include <vector>

#include "elements/controls.h"
#include "elements/dress.h"
#include "painting/pixels.h"

namespace veneerer {

/// One coat of a panel's ground: a colour or a veil over a rectangle, and a picture in its own size from its
/// top left corner on. Both belong to an element that outlives the piece.
struct GroundPiece {
  QRectF rect;    ///< pixels; what is seen of the panel may be less
  QColor colour;  ///< invalid for none
  const Picture* picture;
};

/// The coats of a panel that is shown at that place, from the back to the front, its own picture as the last.
/// Where it isn't opaque they begin with those of what it stands on: of the panels below it, never a text
/// nor a button. A screen stands on the window alone.
/// Colours are those of the dress.
std::vector<GroundPiece> groundOf(const PictureBox& box, const QRectF& rect, const PixelScale& scale,
                                  const Dress& dress);

}  // namespace veneerer
