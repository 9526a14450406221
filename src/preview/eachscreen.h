// A walk over all screens of a Skin.
#pragma once

#include <QImage>
#include <functional>

#include "forms/state.h"
#include "platform/platform.h"

namespace veneerer {

/// Gives each screen's picture, see screenPicture(), in the order of the entries. The progress, which may be
/// null, is told before each, and of the end also where something is thrown.
void forEachScreen(State& state, const Screen& screen, Progress* progress,
                   const std::function<void(int entry, const QImage& image)>& use);

}  // namespace veneerer
