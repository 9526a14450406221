// A Skin as one web page that anybody can look at, without the program and without a network.
#pragma once

#include <QByteArray>
#include <QString>

#include "forms/state.h"
#include "platform/platform.h"

namespace veneerer {

/// The sides of a screen on the page are at most so long, pixels; a larger one is made smaller.
inline constexpr int kMostPageSide = 1920;

/// The whole page, UTF-8: every screen with its picture within the page, links in the place of the menus'
/// buttons, arrow keys. It loads nothing, and all that comes from the Skin is shown as plain text. Without
/// its script, or in a browser that doesn't know its style, the screens stand one below the other or are
/// reached by the links. Nothing of the state is changed. The progress is told before each screen; it may be
/// null. Throws std::runtime_error when a picture can't be encoded.
QByteArray webPage(State& state, const Screen& screen, const QString& skinName, Progress* progress = nullptr);

}  // namespace veneerer
