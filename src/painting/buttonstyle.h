// The eight looks of a button. A style shades the face and draws its edges in translucent light and shade, so
// that the button's own colours and gradient come through in every style.
#pragma once

#include "painting/facecanvas.h"

namespace veneerer {

/// What a style looks at besides the canvas.
struct StyleState {
  bool hover = false;
  bool pressed = false;  ///< held down, or latched
};

struct ButtonStyle {
  const char* name;
  /// Rounding of the corners in pixels; a face's height is the most.
  double radius;
  /// How far the edges reach into the face, pixels.
  int edgeWidth;
  /// Light and shade on the face, under its picture.
  void (*shade)(FaceCanvas&, const StyleState&);
  /// The edges, over the picture.
  void (*edge)(FaceCanvas&, const StyleState&);
};

/// The style of that number; one outside 0 to 7 counts as 0.
const ButtonStyle& buttonStyle(int number);

inline constexpr int kButtonStyleCount = 8;

/// Raises the face along the inside of the style's edges, as every button under the pointer is: light and
/// shade together are seen on any colour and any picture.
void raise(FaceCanvas& face, const ButtonStyle& style);

}  // namespace veneerer
