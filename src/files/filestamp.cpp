#include "files/filestamp.h"

#include <sys/stat.h>

#include <QFile>

namespace veneerer {

namespace {

// The toolkit makes a local date of each time, which takes longer than all else of it.
FileStamp stampOf(const struct stat& status) {
  return {status.st_size, status.st_mtim.tv_sec * 1000 + status.st_mtim.tv_nsec / 1'000'000};
}

}  // namespace

FileStamp stampOf(const QString& path) {
  struct stat status {};
  return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? stampOf(status) : FileStamp();
}

FileStamp stampOfPlain(const QString& path) {
  struct stat status {};
  const bool isThere = ::stat(QFile::encodeName(path).constData(), &status) == 0;
  return isThere && S_ISREG(status.st_mode) ? stampOf(status) : FileStamp();
}

}  // namespace veneerer
