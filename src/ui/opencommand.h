// The ways in which another Skin comes in hand: the command "Open Skin..." and a folder that is dropped.
#pragma once

#include <QAction>

#include "ui/bindings.h"

namespace veneerer {

/// Opens the dialog; the chosen Skin is loaded.
void makeOpenCommand(QAction& open, const Ui& ui);

/// From now on a folder that is dropped on the window is opened when it is a Skin of the program's folder; of
/// any other a note tells what to do.
void openDropped(QWidget& window, const Ui& ui);

}  // namespace veneerer
