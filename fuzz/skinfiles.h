// What the Skins that come with the program give for inputs.
#pragma once

#include <QByteArray>
#include <QString>

#include "support/files.h"

namespace veneerer::fuzz {

/// Their files of these names ("*.ini"), by their paths below the folder of the Skins; no larger than that,
/// bytes.
test::Files shippedFiles(const QStringList& patterns, qsizetype mostBytes);

/// Makes a folder of the files of that Skin, "Copper_Lounge(1024x768)", all of its pictures in small, so that
/// what is done to them takes no time.
void makeSmallSkin(const QString& shipped, const QString& folder);

/// Makes the second folder the same as the first one.
void copyFolder(const QString& from, const QString& to);

}  // namespace veneerer::fuzz
