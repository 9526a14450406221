// Asks what to take from which other Skin.
#pragma once

#include <QMenu>

#include "ui/operator.h"

namespace veneerer {

/// Appends the command. Its dialog belongs to the owner; the hands must outlive the menu.
void addTakeCommand(QMenu& menu, Operator& hands, QWidget& owner);

}  // namespace veneerer
