#include "files/filestamp.h"

#include <sys/stat.h>

#include <QFile>

namespace veneerer {

// The toolkit makes a local date of each time, which takes longer than all else of it.
FileStamp stampOf(const QString& path) {
  struct stat status {};
  if (::stat(QFile::encodeName(path).constData(), &status) != 0) return {};
  return {status.st_size, status.st_mtim.tv_sec * 1000 + status.st_mtim.tv_nsec / 1'000'000};
}

}  // namespace veneerer
