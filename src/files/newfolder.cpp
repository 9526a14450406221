#include "files/newfolder.h"

#include <QDir>
#include <QFileInfo>

#include "files/texts.h"

namespace veneerer {

namespace {

void require(const QString& name, const QString& reason) {
  if (!reason.isEmpty()) throw ReplaceError({name, reason});
}

// Never follows a link, and goes on where something stays.
void removeTree(Disk& disk, const QString& folder) {
  constexpr auto kAll = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
  QString stays;
  for (const QFileInfo& entry : QDir(folder).entryInfoList(kAll, QDir::Unsorted)) {
    if (entry.isDir() && !entry.isSymLink())
      removeTree(disk, entry.filePath());
    else
      stays = disk.remove(entry.filePath());
  }
  stays = disk.removeFolder(folder);
}

void removeAbandonedBeside(Disk& disk, const QString& folder) {
  for (const QFileInfo& entry :
       QDir(folder).entryInfoList({QStringLiteral(".*.saving")}, QDir::Dirs | QDir::Hidden))
    if (isAbandoned(entry.fileName()) && !entry.isSymLink()) removeTree(disk, entry.filePath());
}

}  // namespace

NewFolder::NewFolder(Disk& disk, const QString& path)
    : disk_(disk), path_(QDir::cleanPath(QFileInfo(path).absoluteFilePath())) {
  const QFileInfo place(path_);
  if (place.exists() || place.isSymLink())
    throw ReplaceError({path, FileTexts::tr("something of this name is there already")});
  try {
    makeMissing(place.path());
    removeAbandonedBeside(disk_, place.path());
    temporary_ = place.path() + u'/' + temporaryName(place.fileName());
    make(temporary_, place.fileName());
  } catch (const ReplaceError&) {
    removeMade();
    throw;
  }
}

NewFolder::~NewFolder() {
  removeMade();
}

void NewFolder::makeMissing(const QString& folder) {
  const QFileInfo info(folder);
  if (info.exists()) return;
  makeMissing(info.path());
  make(folder, folder);
}

void NewFolder::make(const QString& folder, const QString& name) {
  require(name, disk_.makeNewFolder(folder));
  made_.append({folder, true});
}

void NewFolder::makeFolder(const QString& name) {
  if (folders_.contains(name)) return;
  makeFolderOf(name);
  make(pathOf(name), name);
  folders_.insert(name);
}

void NewFolder::makeFolderOf(const QString& name) {
  const qsizetype slash = name.lastIndexOf(u'/');
  if (slash > 0) makeFolder(name.left(slash));
}

void NewFolder::madeFile(const QString& name, const QString& reason) {
  require(name, reason);
  made_.append({pathOf(name), false});
}

void NewFolder::create(const QString& name, const QByteArray& bytes) {
  makeFolderOf(name);
  madeFile(name, disk_.create(pathOf(name), bytes));
}

void NewFolder::append(const QString& name, const QByteArray& bytes) {
  require(name, disk_.append(pathOf(name), bytes));
}

void NewFolder::copy(const QString& from, const QString& name, qint64 mostBytes) {
  makeFolderOf(name);
  madeFile(name, disk_.copy(from, pathOf(name), mostBytes));
}

void NewFolder::putInPlace() {
  require(QFileInfo(path_).fileName(), disk_.renameToNew(temporary_, path_));
  made_.clear();
}

void NewFolder::removeMade() {
  QString stays;
  for (auto made = made_.crbegin(); made != made_.crend(); ++made)
    stays = made->isFolder ? disk_.removeFolder(made->path) : disk_.remove(made->path);
  made_.clear();
}

}  // namespace veneerer
