#include "painting/canvassize.h"

#include <algorithm>
#include <cmath>

namespace veneerer {

namespace {

// Without a number there is nothing to show.
double wholePixels(float twips, double twipsPerPixel) {
  const double pixels = std::round(twips / twipsPerPixel);
  return pixels >= 1 ? pixels : 1;
}

}  // namespace

CanvasSize canvasSize(const Form1& form, const Screen& screen) {
  const double width = wholePixels(form.width(), screen.twipsPerPixelX());
  const double height = wholePixels(form.height(), screen.twipsPerPixelY());
  const double shownWidth = std::min<double>(width, kLongestCanvasSide);
  const double mostHeight = std::min<double>(kLongestCanvasSide, std::floor(kMostCanvasPixels / shownWidth));
  const double shownHeight = std::min(height, mostHeight);
  return {QSize(static_cast<int>(shownWidth), static_cast<int>(shownHeight)),
          shownWidth < width || shownHeight < height};
}

}  // namespace veneerer
