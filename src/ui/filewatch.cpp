#include "ui/filewatch.h"

#include <QFileInfo>

namespace veneerer {

FileWatch::FileWatch(const Disk& disk, std::chrono::milliseconds rest) : disk_(disk) {
  rest_.setSingleShot(true);
  rest_.setInterval(rest);
  rest_.callOnTimeout(this, &FileWatch::lookAgain);
  connect(&watcher_, &QFileSystemWatcher::fileChanged, this, &FileWatch::look);
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &FileWatch::look);
}

void FileWatch::watch(const QSet<QString>& paths) {
  QHash<QString, FileStamp> known;
  for (const QString& path : paths) {
    const auto before = known_.constFind(path);
    known.insert(path, before == known_.constEnd() ? stampOf(path) : *before);
  }
  known_ = known;
  follow();
}

// Whatever has been replaced, made or removed.
void FileWatch::follow() {
  QSet<QString> wanted;
  for (auto file = known_.constBegin(); file != known_.constEnd(); ++file) {
    const QString folder = QFileInfo(file.key()).path();
    if (QFileInfo(file.key()).exists()) wanted.insert(file.key());
    if (QFileInfo(folder).isDir()) wanted.insert(folder);
  }
  const QStringList watched = watcher_.files() + watcher_.directories();
  const QSet<QString> has(watched.begin(), watched.end());
  if (const QStringList gone = (has - wanted).values(); !gone.isEmpty()) watcher_.removePaths(gone);
  if (const QStringList more = (wanted - has).values(); !more.isEmpty()) watcher_.addPaths(more);
}

void FileWatch::look() {
  if (!rest_.isActive()) lookAgain();
}

/// Whether the file is another one and has been the same at two looks.
bool FileWatch::hasSettled(const QString& path) {
  const FileStamp now = stampOf(path);
  if (now == known_.value(path) || (now.isThere() && now == disk_.written(path))) {
    known_.insert(path, now);
    moving_.remove(path);
    return false;
  }
  const auto before = moving_.constFind(path);
  const bool stands = before != moving_.constEnd() && *before == now;
  moving_.insert(path, now);
  return stands;
}

void FileWatch::lookAgain() {
  if (isHeld_ && isHeld_()) return rest_.start();
  QSet<QString> settled;
  for (const QString& path : known_.keys())
    if (hasSettled(path)) settled.insert(path);
  for (const QString& path : std::as_const(settled)) known_.insert(path, moving_.take(path));
  for (const QString& path : moving_.keys())
    if (!known_.contains(path)) moving_.remove(path);
  follow();
  if (!moving_.isEmpty()) rest_.start();
  if (!settled.isEmpty()) Q_EMIT changed(settled);
}

}  // namespace veneerer
