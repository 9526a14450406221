// A turn of all colours at once, by their hue, saturation and lightness.
#pragma once

#include <QRgb>

namespace veneerer {

struct ColourTurn {
  int hue = 0;         ///< degrees, from -360 to 360, along the circle red, yellow, green, blue
  int saturation = 0;  ///< percent of what a colour has, from -100, which leaves greys, to 100, twice as much
  int lightness = 0;   ///< percent of the way to black, down to -100, or to white, up to 100

  /// Whether every colour stays what it is.
  bool isNothing() const { return hue % 360 == 0 && saturation == 0 && lightness == 0; }

  bool operator==(const ColourTurn&) const = default;
};

/// The colour turned; its alpha stays. Black, white and greys have no hue and no saturation to turn.
QRgb turned(QRgb colour, const ColourTurn& turn);

}  // namespace veneerer
