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

// The menus in the menu bar. A panel's mnemonics keep clear of theirs.
inline constexpr const char* kMenus[] = {QT_TRANSLATE_NOOP("Ui", "&File"), QT_TRANSLATE_NOOP("Ui", "&Edit"),
                                         QT_TRANSLATE_NOOP("Ui", "&View"), QT_TRANSLATE_NOOP("Ui", "&Window"),
                                         QT_TRANSLATE_NOOP("Ui", "&Help")};

}  // namespace veneerer
