// The grounds of the screens, some of them with a header or an icon.
#pragma once

#include "forms/state.h"
#include "looks/artist.h"

namespace veneerer::looks {

/// Whether the screen of that entry has a ground of its own: all do but the main one, the licence and the two
/// that lie over others.
bool hasBackdrop(int screen);

/// The ground of such a screen, in its size. The height of a header is in pixels.
QImage drawBackdrop(const Artist& artist, const State& state, int screen, int headerHeight);

}  // namespace veneerer::looks
