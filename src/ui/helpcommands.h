// The commands that open the manual.
#pragma once

#include <QMenu>

namespace veneerer {

/// Adds them to the menu. F1 opens the page about what has the focus, in every window of the program, also
/// while a dialog is open. The manual's window is made when it is first asked for and belongs to that window.
void addHelpCommands(QMenu& menu, QWidget& window);

}  // namespace veneerer
