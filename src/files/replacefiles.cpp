#include "files/replacefiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include "files/texts.h"

namespace veneerer {

namespace {

constexpr qsizetype kMostNameBytes = 255;

QString folderIsGone(const QString& folder) {
  return FileTexts::tr("the folder %1 is gone").arg(folder);
}

}  // namespace

FileReplacement::FileReplacement(Disk& disk, const QString& folder, std::vector<NewFile> files)
    : disk_(disk), folder_(QFileInfo(folder).canonicalFilePath()) {
  const bool isGone = !QFileInfo(folder_).isDir();
  for (NewFile& file : files) {
    const QString name = file.name;
    const QString reason = isGone ? folderIsGone(folder) : addTarget(std::move(file));
    if (reason.isEmpty()) continue;
    refusal_ = WriteFault{name, reason};
    return;
  }
}

/// Returns why the file can't be written, empty when it can.
QString FileReplacement::addTarget(NewFile file) {
  const QFileInfo named(QDir(folder_).filePath(file.name));
  const bool exists = named.exists();
  if (named.isSymLink() && !exists) return FileTexts::tr("the file is a link that leads nowhere");
  const QString place = QFileInfo(named.path()).canonicalFilePath();
  if (!QFileInfo(place).isDir()) return folderIsGone(named.path());
  const QString path = exists ? named.canonicalFilePath() : QDir(place).filePath(named.fileName());
  Target target{std::move(file), path, exists, !disk_.canReplace(path), {}};
  const QString fault = faultOf(target);
  if (fault.isEmpty()) targets_.push_back(std::move(target));
  return fault;
}

QString FileReplacement::faultOf(const Target& target) const {
  const QFileInfo info(target.path);
  if (!target.path.startsWith(folder_.endsWith(u'/') ? folder_ : folder_ + u'/'))
    return FileTexts::tr("the file lies outside the folder %1 and isn't written").arg(folder_);
  if (QFile::encodeName(info.fileName()).size() > kMostNameBytes)
    return FileTexts::tr("the name is too long for a file");
  if (target.exists && !info.isFile())
    return FileTexts::tr("there is something under this name that is no file");
  if (target.exists && !info.isWritable()) return FileTexts::tr("the file may not be written");
  if (!target.exists && target.isInPlace) return FileTexts::tr("the folder takes no new files");
  return {};
}

void FileReplacement::run() {
  removeLeftOvers();
  try {
    writeBeside();
    putInPlace();
  } catch (const ReplaceError&) {
    removeTemporaries();
    throw;
  }
}

void FileReplacement::removeLeftOvers() {
  QSet<QString> folders{folder_};
  for (const Target& target : targets_) folders.insert(QFileInfo(target.path).path());
  for (const QString& folder : folders) removeAbandonedFiles(disk_, folder);
}

void FileReplacement::writeBeside() {
  for (Target& target : targets_) {
    if (target.isInPlace) continue;
    const QFileInfo place(target.path);
    const QString temporary = place.path() + u'/' + temporaryName(place.fileName());
    const QString reason =
        disk_.create(temporary, target.file.bytes, target.exists ? target.path : QString());
    if (!reason.isEmpty()) throw ReplaceError({target.file.name, reason});
    target.temporary = temporary;
  }
}

void FileReplacement::putInPlace() {
  for (Target& target : targets_) {
    const QString reason = target.isInPlace ? disk_.overwrite(target.path, target.file.bytes)
                                            : disk_.rename(target.temporary, target.path);
    if (!reason.isEmpty()) throw ReplaceError({target.file.name, reason});
    target.temporary.clear();
  }
}

void FileReplacement::removeTemporaries() {
  for (Target& target : targets_)
    if (!target.temporary.isEmpty()) [[maybe_unused]]
      const QString stays = disk_.remove(target.temporary);
}

}  // namespace veneerer
