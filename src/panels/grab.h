// "Grab Player And Menu Image": makes the menu and the player panel independent of the backdrop by cutting
// their pieces out of it.
#pragma once

#include "forms/state.h"
#include "platform/platform.h"

namespace veneerer {

/// Writes Menu.bmp and Player.bmp into the Skin's images folder, without a question, and shows them. Informs
/// and changes nothing when the canvas has no picture, a panel no size, or one of the files can't be
/// written inside the Skin's folder.
void grabPlayerAndMenu(State& state, const Platform& platform);

}  // namespace veneerer
