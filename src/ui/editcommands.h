// The entries of the menu "Edit" for what is selected on the overlay.
#pragma once

#include <QMenu>

#include "ui/operator.h"

namespace veneerer {

/// Adds them; they are enabled while there is a selection that they can work on. The hands must outlive the
/// menu.
void addEditCommands(QMenu& menu, Operator& hands);

}  // namespace veneerer
