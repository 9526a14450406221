#include "recolouring/colourturn.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace veneerer {

namespace {

/// All from 0 to 1; the hue of a grey is 0.
struct Hsl {
  double hue;
  double saturation;
  double lightness;
};

Hsl hslOf(QRgb colour) {
  const std::array<int, 3> parts = {qRed(colour), qGreen(colour), qBlue(colour)};
  const auto [low, high] = std::ranges::minmax(parts);
  const double lightness = (low + high) / 510.0;
  if (low == high) return {0, 0, lightness};
  const double spread = high - low;
  const double saturation = spread / (low + high <= 255 ? low + high : 510 - low - high);
  const auto [red, green, blue] = parts;
  double sixths = (red - green) / spread + 4;
  if (high == red)
    sixths = (green - blue) / spread;
  else if (high == green)
    sixths = (blue - red) / spread + 2;
  return {sixths / 6, saturation, lightness};
}

/// One part of a colour, whose hue stands so far from it.
int partOf(double hue, double low, double high) {
  const double sixths = (hue - std::floor(hue)) * 6;
  double share = 0;
  if (sixths < 1)
    share = sixths;
  else if (sixths < 3)
    share = 1;
  else if (sixths < 4)
    share = 4 - sixths;
  return static_cast<int>(std::lround((low + (high - low) * share) * 255));
}

QRgb rgbOf(const Hsl& hsl, int alpha) {
  const double reach = hsl.saturation * std::min(hsl.lightness, 1 - hsl.lightness);
  const double low = hsl.lightness - reach;
  const double high = hsl.lightness + reach;
  return qRgba(partOf(hsl.hue + 1.0 / 3, low, high), partOf(hsl.hue, low, high),
               partOf(hsl.hue - 1.0 / 3, low, high), alpha);
}

double lighter(double lightness, int percent) {
  const double way = percent < 0 ? lightness : 1 - lightness;
  return lightness + way * percent / 100;
}

}  // namespace

QRgb turned(QRgb colour, const ColourTurn& turn) {
  Hsl hsl = hslOf(colour);
  hsl.hue += turn.hue / 360.0;
  hsl.saturation = std::clamp(hsl.saturation * (1 + turn.saturation / 100.0), 0.0, 1.0);
  hsl.lightness = lighter(hsl.lightness, turn.lightness);
  return rgbOf(hsl, qAlpha(colour));
}

}  // namespace veneerer
