#include "platform/platform.h"

#include "elements/numbers.h"

namespace veneerer {

std::optional<std::int32_t> PixelsToTwips(const Screen& screen, double pixels, Axis axis) {
  return toWhole(pixels * 1440 / (axis == Axis::X ? screen.dpiX : screen.dpiY));
}

}  // namespace veneerer
