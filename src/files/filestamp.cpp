#include "files/filestamp.h"

#include <QDateTime>
#include <QFileInfo>

namespace veneerer {

FileStamp stampOf(const QString& path) {
  const QFileInfo info(path);
  if (!info.exists()) return {};
  return {info.size(), info.lastModified().toMSecsSinceEpoch()};
}

}  // namespace veneerer
