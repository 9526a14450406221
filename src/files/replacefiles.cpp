#include "files/replacefiles.h"

#include <signal.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <cerrno>

namespace veneerer {

namespace {

// ".queue.ini.4711-0123456789abcdef.saving": hidden, told by its process, and not to be foreseen.
QString temporaryName(const QString& name) {
  const auto random = QRandomGenerator::system()->generate64();
  return QStringLiteral(".%1.%2-%3.saving").arg(name).arg(::getpid()).arg(random, 16, 16, QLatin1Char('0'));
}

QRegularExpressionMatch leftOverParts(const QString& name) {
  static const QRegularExpression form(QStringLiteral("^\\..+\\.([0-9]{1,9})-[0-9a-f]{16}\\.saving$"));
  return form.match(name);
}

// Another program may be saving into the same folder right now.
bool isAtWork(const QString& processNumber) {
  return ::kill(static_cast<pid_t>(processNumber.toLong()), 0) == 0 || errno != ESRCH;
}

void removeLeftOvers(Disk& disk, const QString& folder) {
  const auto files = QDir(folder).entryInfoList({QStringLiteral("*.saving")}, QDir::Files | QDir::Hidden);
  for (const QFileInfo& file : files) {
    const auto parts = leftOverParts(file.fileName());
    if (parts.hasMatch() && !file.isSymLink() && !isAtWork(parts.captured(1))) [[maybe_unused]]
      const QString stays = disk.remove(file.filePath());
  }
}

}  // namespace

bool isLeftOver(const QString& name) {
  return leftOverParts(name).hasMatch();
}

FileReplacement::FileReplacement(Disk& disk, const QString& folder, std::vector<NewFile> files)
    : disk_(disk), folder_(QFileInfo(folder).canonicalFilePath()) {
  if (folder_.isEmpty() || !QFileInfo(folder_).isDir())
    refusal_ = QStringLiteral("the folder %1 is gone").arg(folder);
  for (NewFile& file : files) {
    if (!refusal_.isEmpty()) return;
    const QString name = file.name;
    const QString reason = addTarget(std::move(file));
    if (!reason.isEmpty()) refusal_ = name + QStringLiteral(": ") + reason;
  }
}

QString FileReplacement::addTarget(NewFile file) {
  const QFileInfo named(folder_ + u'/' + file.name);
  Target target{std::move(file), named.filePath(), named.exists(), false, {}};
  if (named.isSymLink() && !target.exists) return QStringLiteral("the file is a link that leads nowhere");
  if (target.exists) {
    target.path = named.canonicalFilePath();
    if (!target.path.startsWith(folder_ + u'/'))
      return QStringLiteral("the file lies outside the Skin's folder and isn't written");
    if (!named.isFile()) return QStringLiteral("there is something under this name that is no file");
    if (!named.isWritable()) return QStringLiteral("the file may not be written");
  }
  target.isInPlace = !disk_.takesNewFiles(QFileInfo(target.path).path());
  if (target.isInPlace && !target.exists) return QStringLiteral("the folder takes no new files");
  targets_.push_back(std::move(target));
  return {};
}

void FileReplacement::run() {
  removeLeftOvers(disk_, folder_);
  try {
    writeBeside();
    putInPlace();
  } catch (const ReplaceError&) {
    removeTemporaries();
    throw;
  }
}

void FileReplacement::writeBeside() {
  for (Target& target : targets_) {
    if (target.isInPlace) continue;
    const QFileInfo place(target.path);
    const QString temporary = place.path() + u'/' + temporaryName(place.fileName());
    const QString reason =
        disk_.create(temporary, target.file.bytes, target.exists ? target.path : QString());
    if (!reason.isEmpty()) throw ReplaceError(target.file.name, reason);
    target.temporary = temporary;
  }
}

void FileReplacement::putInPlace() {
  for (Target& target : targets_) {
    const QString reason = target.isInPlace ? disk_.overwrite(target.path, target.file.bytes)
                                            : disk_.rename(target.temporary, target.path);
    if (!reason.isEmpty()) throw ReplaceError(target.file.name, reason);
    target.temporary.clear();
  }
}

void FileReplacement::removeTemporaries() {
  for (Target& target : targets_)
    if (!target.temporary.isEmpty()) [[maybe_unused]]
      const QString stays = disk_.remove(target.temporary);
}

}  // namespace veneerer
