#include "platform/platform.h"

#include "elements/numbers.h"

namespace veneerer {

std::optional<std::int32_t> PixelsToTwips(const Screen& screen, double pixels, int direction) {
  return toWhole(pixels * 1440 / (direction == 0 ? screen.dpiX : screen.dpiY));
}

}  // namespace veneerer
