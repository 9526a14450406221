// Keys that more than one window knows.
#pragma once

#include <QKeySequence>
#include <QList>

namespace veneerer {

// The same on every desktop, whatever it calls its standard.
inline const QList<QKeySequence> kUndoKeys{QKeySequence(Qt::CTRL | Qt::Key_Z)};
inline const QList<QKeySequence> kRedoKeys{QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z),
                                           QKeySequence(Qt::CTRL | Qt::Key_Y)};

// Opens the window in which a Skin is tried, and closes it.
inline constexpr Qt::Key kTryItKey = Qt::Key_F11;

// The letters of the menus in the menu bar; a panel's mnemonics keep clear of them.
inline constexpr char16_t kMenuLetters[] = u"FEVWH";

}  // namespace veneerer
