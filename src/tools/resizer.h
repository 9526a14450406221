// Scales the placement and the font size of every element of a window; pixels are the rescale's business.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <utility>

#include "elements/window.h"
#include "platform/platform.h"

namespace veneerer {

/// The factors of a scaling can't be computed: the remembered size of the window is 0, or a number is beyond
/// its range. It ends the program like any other run-time error of its kind. Its text is in English;
/// ToolTexts has the translation.
class ScaleFault : public std::domain_error {
public:
  using std::domain_error::domain_error;
};

class Resizer {
public:
  /// Multiplies, in the window's own order: Left and Width by factorX, Top and Height by factorY, a font by
  /// the mean of both. A drop-down list keeps its height, which follows its font. What can't be scaled, as
  /// an element without a font or a product beyond a Single, is passed over. The window itself moves only
  /// after scaleToScreen.
  void ScaleAll(float factorX, float factorY, Window& window);

  /// Throws ScaleFault when scaleToScreen and then scaleOnResize for a window of the new size, twips,
  /// couldn't compute their factors. Changes nothing.
  static void requireScale(const Window& window, const Screen& screen, float width, float height);

  /// What scaleToScreen multiplies by, across and down. Throws ScaleFault for a screen beyond 32767 pixels.
  static std::pair<float, float> screenFactors(const Screen& screen);

  /// Scales a window that was designed for a screen of 1024 by 768 to the given one, and moves it with its
  /// elements. Throws ScaleFault, before anything has moved, for a screen beyond 32767 pixels.
  void scaleToScreen(Window& window, const Screen& screen);

  /// Scales the elements by the change of the window's size since the last scaling of either kind. Throws
  /// ScaleFault when that size was 0 in a direction (it is, until the first scaling). A call that comes from
  /// the walk's own moves does nothing.
  void scaleOnResize(Window& window);

private:
  void remember(const Window& window);

  float factorX_ = 1;
  float factorY_ = 1;
  bool windowMoves_ = false;
  bool isWalking_ = false;
  std::int32_t lastHeight_ = 0;  // twips
  std::int32_t lastWidth_ = 0;
};

}  // namespace veneerer
