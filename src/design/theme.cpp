#include "design/theme.h"

namespace veneerer::design {

namespace {

constexpr Colour kWhite = rgb(255, 255, 255);
constexpr Colour kPale = rgb(222, 232, 245);
constexpr Colour kSteel = rgb(150, 170, 196);
constexpr Colour kSky = rgb(104, 184, 255);

constexpr int kAccentStyle = 6;
constexpr int kDownwards = 2;

constexpr Theme kBlackAndBlue = {
    .screen = {rgb(10, 14, 22), kWhite, kPale, kSteel, kSky},
    .header = {rgb(10, 14, 22), kWhite, kPale, kSteel, kSky},
    .bar = {rgb(14, 20, 31), kWhite, kPale, kSteel, kSky},
    .row = {rgb(20, 29, 45), kWhite, kPale, kSteel, kSky},
    .field = {rgb(30, 45, 72), kWhite, kPale, kSteel, kSky},
    .card = {kCardBack, kWhite, kPale, kSteel, kSky},
    .menu = {0, kAccentStyle, rgb(28, 46, 78), kWhite, rgb(14, 24, 42), kDownwards},
    .transport = {0, kAccentStyle, rgb(0, 88, 168), kWhite, rgb(0, 46, 98), kDownwards},
    .plain = {0, kAccentStyle, rgb(34, 54, 88), kWhite, rgb(18, 30, 52), kDownwards},
    .primary = {0, kAccentStyle, rgb(0, 98, 190), kWhite, rgb(0, 56, 118), kDownwards},
    .tab = {0, kAccentStyle, rgb(24, 40, 68), kSky, rgb(14, 24, 42), kDownwards},
    .key = {0, kAccentStyle, rgb(40, 62, 100), kWhite, rgb(22, 36, 62), kDownwards},
    .wideKey = {0, kAccentStyle, rgb(0, 80, 156), kWhite, rgb(0, 46, 98), kDownwards},
    .track = rgb(38, 58, 92),
};

}  // namespace

const Theme& blackAndBlue() {
  return kBlackAndBlue;
}

}  // namespace veneerer::design
