// The commands of the menu "File" by which a whole Skin comes and goes.
#pragma once

#include <QMenu>

#include "ui/operator.h"

namespace veneerer {

/// Appends them. Their dialogs belong to the owner; the hands must outlive the menu.
void addExchangeCommands(QMenu& menu, Operator& hands, QWidget& owner);

/// Puts the Skin of that archive among the others, as the command does; what stands against it is told in a
/// box.
void importArchive(Operator& hands, QWidget& owner, const QString& file);

}  // namespace veneerer
