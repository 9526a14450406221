#include "files/disk.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace veneerer {

namespace {

QString systemReason() {
  return QString::fromLocal8Bit(std::strerror(errno));
}

/// A descriptor that is closed in any case.
class Descriptor {
public:
  Descriptor(const QString& path, int flags)
      : number_(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC | O_NOCTTY, 0666)) {}
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  bool isOpen() const { return number_ >= 0; }
  int number() const { return number_; }

  bool writeAll(const QByteArray& bytes) const {
    for (qsizetype done = 0; done < bytes.size();) {
      const ssize_t wrote =
          ::write(number_, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
      if (wrote < 0 && errno != EINTR) return false;
      if (wrote > 0) done += wrote;
    }
    return true;
  }

  /// Some disks tell only here that they are full.
  bool close() {
    const int result = ::close(number_);
    number_ = -1;
    return result == 0;
  }

private:
  int number_;
};

// An owner that may not be given away stays ours; the owner comes first, because a change of it takes away
// some permissions.
void makeLike(const Descriptor& file, const QString& like) {
  struct stat status {};
  if (like.isEmpty() || ::stat(QFile::encodeName(like).constData(), &status) != 0) return;
  [[maybe_unused]] const int owned = ::fchown(file.number(), status.st_uid, status.st_gid);
  [[maybe_unused]] const int permitted = ::fchmod(file.number(), status.st_mode & 07777);
}

}  // namespace

bool Disk::canReplace(const QString& path) {
  const QFileInfo folder(QFileInfo(path).path());
  struct stat place {};
  struct stat file {};
  if (!folder.isWritable() || ::stat(QFile::encodeName(folder.filePath()).constData(), &place) != 0)
    return false;
  const bool isSticky = (place.st_mode & S_ISVTX) != 0;
  if (!isSticky || ::lstat(QFile::encodeName(path).constData(), &file) != 0) return true;
  // Such a folder lets a file go only at the word of the file's owner or its own.
  const uid_t we = ::geteuid();
  return we == 0 || place.st_uid == we || file.st_uid == we;
}

QString Disk::create(const QString& path, const QByteArray& bytes, const QString& like) {
  Descriptor file(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW);
  if (!file.isOpen()) return systemReason();
  makeLike(file, like);
  if (file.writeAll(bytes) && file.close()) return {};
  const QString reason = systemReason();
  ::unlink(QFile::encodeName(path).constData());
  return reason;
}

QString Disk::overwrite(const QString& path, const QByteArray& bytes) {
  Descriptor file(path, O_WRONLY | O_NOFOLLOW | O_NONBLOCK);
  struct stat status {};
  if (!file.isOpen() || ::fstat(file.number(), &status) != 0) return systemReason();
  if (!S_ISREG(status.st_mode)) return QStringLiteral("there is something under this name that is no file");
  const bool isDone = ::ftruncate(file.number(), 0) == 0 && file.writeAll(bytes) && file.close();
  return isDone ? QString() : systemReason();
}

QString Disk::rename(const QString& from, const QString& to) {
  const int result = std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData());
  return result == 0 ? QString() : systemReason();
}

QString Disk::remove(const QString& path) {
  return ::unlink(QFile::encodeName(path).constData()) == 0 ? QString() : systemReason();
}

QString Disk::makeFolder(const QString& path) {
  errno = 0;
  if (QDir().mkpath(path)) return {};
  return errno != 0 ? systemReason() : QStringLiteral("the folder can't be made");
}

}  // namespace veneerer
