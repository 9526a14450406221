// All screens of a Skin on one picture.
#pragma once

#include <QImage>

#include "forms/state.h"
#include "platform/platform.h"

namespace veneerer {

/// The sides of a screen on the sheet are at most so long, pixels. None is enlarged.
inline constexpr int kMostSheetSide = 320;

/// The 32 screens in rows of eight, each above its name. Nothing of the state is changed. The progress is
/// told before each screen; it may be null.
QImage screenSheet(State& state, const Screen& screen, Progress* progress = nullptr);

}  // namespace veneerer
