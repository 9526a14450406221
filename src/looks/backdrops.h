// The grounds of the screens, of which each has an icon of its own or a header.
#pragma once

#include "forms/state.h"
#include "looks/artist.h"

namespace veneerer::looks {

/// The ground of that member of Picture1, 1 to 29 without the licence, in its size. The height of a header is
/// in pixels.
QImage drawBackdrop(const Artist& artist, const State& state, int screen, int headerHeight);

}  // namespace veneerer::looks
