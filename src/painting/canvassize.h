// The canvas window in pixels.
#pragma once

#include <QSize>

#include "forms/form1.h"
#include "platform/platform.h"

namespace veneerer {

/// The most pixels of a canvas that is drawn as a whole, and the longest of its sides. A stranger's Skin may
/// claim any size.
inline constexpr qint64 kMostCanvasPixels = 48LL * 1024 * 1024;
inline constexpr int kLongestCanvasSide = 16384;

struct CanvasSize {
  QSize pixels;        ///< at least one each way
  bool isCut = false;  ///< the window is larger than that: only its upper left part is drawn
};

/// The size of the canvas window on that screen, rounded to whole pixels and kept within the bounds.
CanvasSize canvasSize(const Form1& form, const Screen& screen);

}  // namespace veneerer
