// The program's own Skins, to be worked on.
#pragma once

#include <QDir>

namespace veneerer::test {

/// A copy of one of the program's own Skins, with its pictures, as a Skin of that root.
inline void copyShippedSkin(const QString& shipped, const QString& root, const QString& name) {
  const QString source = QStringLiteral(VENEERER_SOURCE_DIR "/Skins/") + shipped;
  for (const QString& folder : {QString(), QStringLiteral("/images")}) {
    const QString target = root + QStringLiteral("/Skins/") + name + folder;
    QDir().mkpath(target);
    for (const QString& file : QDir(source + folder).entryList(QDir::Files))
      QFile::copy(source + folder + u'/' + file, target + u'/' + file);
  }
}

/// The Skins S and T of that root, which differ in size and in nearly everything else.
inline void copyTwoShippedSkins(const QString& root) {
  copyShippedSkin(QStringLiteral("Black_and_Blue_gif_V8.0(800x600)"), root, QStringLiteral("S"));
  copyShippedSkin(QStringLiteral("Copper_Lounge(1024x768)"), root, QStringLiteral("T"));
}

}  // namespace veneerer::test
