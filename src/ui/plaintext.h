// Texts from a stranger's files in widgets of the toolkit, which would read some of them as markup.
#pragma once

#include <QString>
#include <QStringList>

namespace veneerer {

/// shownText() in the form in which a tool tip shows it character by character.
QString plainToolTip(const QString& text);

/// The same for an entry of a menu: an ampersand marks no letter.
QString plainMenuText(const QString& text);

/// shownText() of each row.
QStringList shownRows(const QStringList& rows);

}  // namespace veneerer
