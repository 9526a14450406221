// The language of the texts: which there are, which one is meant, and how the program comes to speak it.
#pragma once

#include <QList>
#include <QMenu>
#include <QString>
#include <QStringList>

#include "elements/notes.h"

namespace veneerer {

struct Language {
  QString code;  ///< "de"
  QString name;  ///< in itself: "Deutsch"
};

/// Those that there are texts in. English, in which they are written, comes first.
QList<Language> languages();

/// Whether it is the code of one of them.
bool isSpoken(const QString& code);

/// The code of the language to speak: the one that is asked for, else the first that there are texts in among
/// those of the desktop, "de-AT" or plain "de"; English where there is none.
QString languageFor(const QString& asked, const QStringList& ofDesktop);

/// From now on all texts that are made are in that language, those of the toolkit included where it has some.
/// For English nothing is read. Numbers have a full stop in every language.
void speak(const QString& code);

/// What the operator has chosen for all starts; empty for the desktop's language, and for one without texts.
QString keptLanguage();

/// Adds the choice among the languages. It is kept, and taken at the next start.
void addLanguageMenu(QMenu& menu, Notes& notes);

}  // namespace veneerer
