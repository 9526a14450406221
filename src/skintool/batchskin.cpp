#include "skintool/batchskin.h"

#include <QDir>
#include <QFileInfo>

namespace veneerer {

namespace {

QString wholePath(const QString& path) {
  return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

}  // namespace

QString skinName(const QString& path) {
  return QFileInfo(wholePath(path)).fileName();
}

ProgramFolder programFolder(const QString& path) {
  const QString root = QFileInfo(wholePath(path)).path();
  return {QFileInfo(root).path(), root};
}

}  // namespace veneerer
