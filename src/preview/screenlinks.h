// Where a picture of a screen can be clicked.
#pragma once

#include <QRectF>
#include <QString>
#include <vector>

#include "forms/state.h"
#include "painting/hittest.h"
#include "platform/platform.h"

namespace veneerer {

/// A button of a menu in the picture of a screen.
struct ScreenLink {
  QRectF place;     ///< in parts of the picture's width and height, 0 to 1
  QString caption;  ///< of the button, one printable line; empty for one without words
  int entry;        ///< of the screen that it leads to
};

/// The ways out of a screen that can be seen, and so clicked, in its screenPicture(); in the order of the
/// menus.
std::vector<ScreenLink> screenLinks(State& state, const Screen& screen, int entry);

}  // namespace veneerer
