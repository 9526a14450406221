// The command "Open Skin...", by which another Skin comes in hand.
#pragma once

#include <QAction>

#include "ui/bindings.h"

namespace veneerer {

/// Opens the dialog; the chosen Skin is loaded.
void makeOpenCommand(QAction& open, const Ui& ui);

}  // namespace veneerer
