// Colours and button looks of a composition. A theme is data; what stands where is the composers' business.
#pragma once

#include "elements/colour.h"

namespace veneerer::design {

constexpr Colour rgb(int red, int green, int blue) {
  return red | green << 8 | blue << 16;
}

struct ButtonLook {
  int shape = 0;
  int style = 0;
  Colour back = 0;
  Colour fore = 0;
  Colour gradient = 0;
  int mode = 0;
};

/// What texts look like on one kind of ground; every ink has a contrast of at least 4.5 to 1 on it.
struct Ground {
  Colour back = 0;
  Colour heading = 0;
  Colour body = 0;
  Colour muted = 0;
  Colour accent = 0;
};

struct Theme {
  Ground screen;  ///< the screens and dialogs
  Ground header;  ///< the upper edge of a screen
  Ground bar;     ///< menu, player and status bars
  Ground row;     ///< a row of a list
  Ground field;   ///< where a text is typed
  Ground card;    ///< texts on panels that have pictures of their own
  ButtonLook menu;
  ButtonLook transport;
  ButtonLook plain;
  ButtonLook primary;
  ButtonLook tab;
  ButtonLook key;
  ButtonLook wideKey;  ///< the keys that do more than write a letter
  Colour track = 0;    ///< the ground of sliders
};

// No record holds the colours of these, so they look the same in every Skin: neutral darks that go with any
// palette.

/// Panels that show what lies beneath; it is told, but never seen.
inline constexpr Colour kCardBack = rgb(30, 30, 31);
/// A picture that is still to come; told, but never seen.
inline constexpr Colour kArtwork = rgb(54, 56, 60);
/// Buttons that no record, or only another button's, brings back.
inline constexpr ButtonLook kNeutralButton = {0, 6, rgb(62, 62, 62), rgb(255, 255, 255), rgb(42, 42, 42), 2};
inline constexpr ButtonLook kDangerButton = {0, 6, rgb(150, 30, 38), rgb(255, 255, 255), rgb(104, 16, 24), 2};

/// The theme of the built-in design.
const Theme& blackAndBlue();

}  // namespace veneerer::design
