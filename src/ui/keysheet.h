// The sheet of all keys and gestures.
#pragma once

#include <QWidget>

namespace veneerer {

/// Shows the sheet beside that window, which it belongs to, or brings it up again. It lists the shortcut of
/// every command of the window as it is now, and then what keys and the mouse do on the canvas.
void showKeySheet(QWidget& window);

}  // namespace veneerer
