#include "looks/backdrops.h"

#include <algorithm>

#include "elements/require.h"
#include "looks/faces.h"

namespace veneerer::looks {

namespace {

struct Ground {
  int screen;
  Icon icon;
  bool hasHeader;
};

constexpr Ground kGrounds[] = {
    {1, Icon::Clock, true},   {2, Icon::Podium, true},   {3, Icon::Magnifier, true},  {4, Icon::Queue, true},
    {5, Icon::Sliders, true}, {6, Icon::Calendar, true}, {7, Icon::Note, true},       {8, Icon::Play, true},
    {9, Icon::None, true},    {10, Icon::Disc, true},    {11, Icon::Magnifier, true}, {12, Icon::None, false},
    {13, Icon::None, true},   {14, Icon::None, false},   {15, Icon::None, false},     {16, Icon::Lock, false},
    {17, Icon::None, false},  {18, Icon::None, false},   {19, Icon::None, false},     {20, Icon::Note, false},
    {21, Icon::None, false},  {22, Icon::None, false},   {23, Icon::None, false},     {24, Icon::None, false},
    {25, Icon::None, true},   {27, Icon::None, false},   {28, Icon::Check, false},    {29, Icon::None, false},
};

const Ground* groundOf(int screen) {
  const auto* found = std::ranges::find(kGrounds, screen, &Ground::screen);
  return found == std::end(kGrounds) ? nullptr : found;
}

}  // namespace

bool hasBackdrop(int screen) {
  return groundOf(screen) != nullptr;
}

QImage drawBackdrop(const Artist& artist, const State& state, int screen, int headerHeight) {
  const Ground* ground = groundOf(screen);
  require(ground != nullptr, "the screen has a ground");
  return artist.screen(sizeOf(state.form1.Picture1[screen]), ground->hasHeader ? headerHeight : 0,
                       ground->icon);
}

}  // namespace veneerer::looks
