#include "platform/programplace.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include "files/foldertree.h"
#include "files/newfolder.h"
#include "platform/skinfolder.h"
#include "platform/texts.h"

namespace veneerer {

namespace {

// Far more than what comes with the program.
constexpr qsizetype kMostShared = 100'000;

QString wholePath(const QString& path) {
  return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

bool hasSkins(const QString& folder) {
  return QFileInfo(SkinsRoot(ProgramFolder{folder}).path()).isDir();
}

void copyFolder(const QString& from, const QString& to, Disk& disk) {
  const FolderTree tree = folderTree(QFileInfo(from).canonicalFilePath(), kMostShared);
  NewFolder folder(disk, to);
  for (const QString& name : tree.folders) folder.makeFolder(name);
  for (const TreeFile& file : tree.files) folder.copy(file.path, file.name, file.bytes);
  folder.putInPlace();
}

// The Skins come last: where they stand, nothing is missing.
void copyShared(const QString& shared, const QString& user, Disk& disk) {
  for (const QString& name : {QStringLiteral("images"), QStringLiteral("Skins")}) {
    const QString from = shared + u'/' + name;
    const QString to = user + u'/' + name;
    if (QFileInfo(from).isDir() && !QFileInfo::exists(to)) copyFolder(from, to, disk);
  }
}

FoundPlace userPlace(const ProgramPlaces& places, Disk& disk) {
  FoundPlace found{{places.user}};
  const auto shared = std::ranges::find_if(places.shared, hasSkins);
  if (hasSkins(places.user) || shared == places.shared.end()) return found;
  try {
    copyShared(*shared, places.user, disk);
  } catch (const ReplaceError& error) {
    const WriteFault& fault = error.fault();
    found.fault = PlatformTexts::tr("The Skins that come with the program can't be copied to %1: %2: %3.")
                      .arg(places.user, fault.name, fault.reason);
  }
  return found;
}

}  // namespace

QString skinName(const QString& path) {
  return QFileInfo(wholePath(path)).fileName();
}

ProgramFolder programFolder(const QString& skinPath) {
  const QString root = QFileInfo(wholePath(skinPath)).path();
  return {QFileInfo(root).path(), root};
}

FoundPlace findPlace(const ProgramPlaces& places, Disk& disk) {
  if (!places.skin.isEmpty()) {
    FoundPlace around{programFolder(places.skin)};
    if (!places.given.isEmpty()) around.folder.path = places.given;
    return around;
  }
  if (!places.given.isEmpty()) return {{places.given}};
  if (!places.beside.isEmpty() && hasSkins(places.beside)) return {{places.beside}};
  return userPlace(places, disk);
}

}  // namespace veneerer
