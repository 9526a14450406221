#include "canvas/design/theme.h"

namespace veneerer::design {

namespace {

constexpr std::int32_t kWhite = rgb(255, 255, 255);
constexpr std::int32_t kPale = rgb(222, 232, 245);
constexpr std::int32_t kSteel = rgb(150, 170, 196);
constexpr std::int32_t kSky = rgb(104, 184, 255);

constexpr Theme kBlackAndBlue = {
    .screen = {rgb(10, 14, 22), kWhite, kPale, kSteel, kSky},
    .header = {rgb(10, 14, 22), kWhite, kPale, kSteel, kSky},
    .bar = {rgb(14, 20, 31), kWhite, kPale, kSteel, kSky},
    .row = {rgb(20, 29, 45), kWhite, kPale, kSteel, kSky},
    .field = {rgb(4, 7, 12), kWhite, kPale, kSteel, kSky},
    .menu = {0, 0, rgb(28, 46, 78), kWhite, rgb(14, 24, 42), 1},
    .transport = {0, 0, rgb(0, 88, 168), kWhite, rgb(0, 46, 98), 1},
    .plain = {0, 0, rgb(34, 54, 88), kWhite, rgb(18, 30, 52), 1},
    .primary = {0, 0, rgb(0, 98, 190), kWhite, rgb(0, 56, 118), 1},
    .tab = {0, 0, rgb(24, 40, 68), kSky, rgb(14, 24, 42), 1},
    .key = {0, 0, rgb(40, 62, 100), kWhite, rgb(22, 36, 62), 1},
    .wideKey = {0, 0, rgb(0, 80, 156), kWhite, rgb(0, 46, 98), 1},
    .track = rgb(20, 29, 45),
};

}  // namespace

const Theme& blackAndBlue() {
  return kBlackAndBlue;
}

}  // namespace veneerer::design
