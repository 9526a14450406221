#include "files/leftovers.h"

#include <signal.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <cerrno>

namespace veneerer {

namespace {

constexpr qsizetype kNameCharacters = 40;  // of a temporary name; with the rest it stays below 255 bytes

QRegularExpressionMatch partsOf(const QString& name) {
  static const QRegularExpression form(QStringLiteral("^\\..+\\.([0-9]{1,9})-[0-9a-f]{16}\\.saving$"),
                                       QRegularExpression::DotMatchesEverythingOption);
  return form.match(name);
}

// Another program may be saving into the same folder right now.
bool isAtWork(const QString& processNumber) {
  return ::kill(static_cast<pid_t>(processNumber.toLong()), 0) == 0 || errno != ESRCH;
}

}  // namespace

// ".queue.ini.4711-0123456789abcdef.saving"
QString temporaryName(const QString& name) {
  const QString random = QString::number(QRandomGenerator::system()->generate64(), 16);
  return QStringLiteral(".%1.%2-%3.saving")
      .arg(name.left(kNameCharacters), QString::number(::getpid()), random.rightJustified(16, u'0'));
}

bool isLeftOver(const QString& name) {
  return partsOf(name).hasMatch();
}

bool isAbandoned(const QString& name) {
  const QRegularExpressionMatch parts = partsOf(name);
  return parts.hasMatch() && !isAtWork(parts.captured(1));
}

void removeAbandonedFiles(Disk& disk, const QString& folder) {
  const auto files = QDir(folder).entryInfoList({QStringLiteral("*.saving")}, QDir::Files | QDir::Hidden);
  for (const QFileInfo& file : files) {
    if (isAbandoned(file.fileName()) && !file.isSymLink()) [[maybe_unused]]
      const QString stays = disk.remove(file.filePath());
  }
}

}  // namespace veneerer
