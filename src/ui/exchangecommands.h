// The commands of the menu "File" by which a whole Skin comes and goes.
#pragma once

#include <QMenu>

#include "exchange/longwork.h"
#include "files/foldertree.h"
#include "ui/operator.h"

namespace veneerer {

/// Appends them. Their dialogs belong to the owner; the hands must outlive the menu.
void addExchangeCommands(QMenu& menu, Operator& hands, QWidget& owner);

/// Asks for the name of a copy of the Skin in hand, has the work make its folder, and goes on with it; what
/// stands against it is told in a box. The work returns what is to be told behind the note, and may throw
/// ExchangeError and GivenUp. False when there is no new Skin.
bool copyAsNewSkin(Operator& hands, QWidget& owner, const QString& title,
                   const std::function<QString(const QString& folder, const GoOn& goOn)>& make);

/// " Left out: ..." for such a note; empty where nothing is.
QString leftOutNote(const QList<LeftOut>& leftOut);

/// Puts the Skin of that archive among the others, as the command does; what stands against it is told in a
/// box.
void importArchive(Operator& hands, QWidget& owner, const QString& file);

}  // namespace veneerer
