#include "elements/colour.h"

#include <iterator>

namespace veneerer {

namespace {

// The classic desktop's own colours as 0x00BBGGRR, by their numbers. They are fixed, not asked of the
// desktop, so that a Skin looks the same on every machine.
constexpr std::int32_t kSystemColours[] = {
    0xC8D0D4,  // scroll bar
    0xA56E3A,  // desktop
    0x6A240A,  // active title bar
    0x808080,  // inactive title bar
    0xC8D0D4,  // menu bar
    0xFFFFFF,  // window
    0x000000,  // window frame
    0x000000,  // menu text
    0x000000,  // window text
    0xFFFFFF,  // title bar text
    0xC8D0D4,  // active border
    0xC8D0D4,  // inactive border
    0x808080,  // application workspace
    0x6A240A,  // highlight
    0xFFFFFF,  // highlight text
    0xC8D0D4,  // button face
    0x808080,  // button shadow
    0x808080,  // disabled text
    0x000000,  // button text
    0xC8D0D4,  // inactive title bar text
    0xFFFFFF,  // button highlight
    0x404040,  // button dark shadow
    0xC8D0D4,  // button light shadow
    0x000000,  // tool tip text
    0xE1FFFF,  // tool tip
    0xB5B5B5,  // alternate face
    0x800000,  // hot text
    0xF0CAA6,  // right end of the active title bar
    0xC0C0C0,  // right end of the inactive title bar
};

constexpr std::uint32_t kPlainMask = 0x00FFFFFF;

std::int32_t systemColour(std::uint32_t number) {
  return number < std::size(kSystemColours) ? kSystemColours[number] : 0;
}

}  // namespace

Colour Colour::of(const QColor& colour) {
  return colour.blue() << 16 | colour.green() << 8 | colour.red();
}

Colour Colour::plain() const {
  const auto bits = static_cast<std::uint32_t>(number_) & kPlainMask;
  return isSystem() ? systemColour(bits) : static_cast<std::int32_t>(bits);
}

QColor Colour::toQColor() const {
  const std::int32_t bits = plain().number_;
  return QColor(bits & 0xFF, bits >> 8 & 0xFF, bits >> 16 & 0xFF);
}

}  // namespace veneerer
