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

#include "files/texts.h"

namespace veneerer {

namespace {

QString systemReason() {
  return QString::fromLocal8Bit(std::strerror(errno));
}

/// A descriptor that is closed in any case.
class Descriptor {
public:
  Descriptor(const QString& path, int flags, mode_t mode = 0666)
      : number_(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC | O_NOCTTY, mode)) {}
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

  /// Fewer bytes than asked for only at the end. False when reading fails.
  bool read(QByteArray& bytes) const {
    qsizetype had = 0;
    for (ssize_t got = 1; got != 0 && had < bytes.size();) {
      got = ::read(number_, bytes.data() + had, static_cast<std::size_t>(bytes.size() - had));
      if (got < 0 && errno != EINTR) return false;
      if (got > 0) had += got;
    }
    bytes.truncate(had);
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

constexpr qsizetype kChunk = 1024 * 1024;  // bytes

QString noFile() {
  return FileTexts::tr("there is something under this name that is no file");
}

/// Why not all bytes could be copied, empty when they were.
QString pour(const Descriptor& from, const Descriptor& to, qint64 mostBytes) {
  for (qint64 total = 0;;) {
    QByteArray bytes(kChunk, Qt::Uninitialized);
    if (!from.read(bytes)) return systemReason();
    total += bytes.size();
    if (total > mostBytes) return FileTexts::tr("the file is too large");
    if (!to.writeAll(bytes)) return systemReason();
    if (bytes.size() < kChunk) return {};
  }
}

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
  if (file.writeAll(bytes) && file.close()) {
    note(path);
    return {};
  }
  const QString reason = systemReason();
  ::unlink(QFile::encodeName(path).constData());
  return reason;
}

QString Disk::append(const QString& path, const QByteArray& bytes) {
  Descriptor file(path, O_WRONLY | O_APPEND | O_NOFOLLOW | O_NONBLOCK);
  struct stat status {};
  if (!file.isOpen() || ::fstat(file.number(), &status) != 0) return systemReason();
  if (!S_ISREG(status.st_mode)) return noFile();
  return file.writeAll(bytes) && file.close() ? QString() : systemReason();
}

QString Disk::copy(const QString& from, const QString& to, qint64 mostBytes) {
  const Descriptor source(from, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
  struct stat status {};
  if (!source.isOpen() || ::fstat(source.number(), &status) != 0) return systemReason();
  if (!S_ISREG(status.st_mode)) return noFile();
  const mode_t mode = (status.st_mode & 0777) | S_IRUSR | S_IWUSR;
  Descriptor target(to, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
  if (!target.isOpen()) return systemReason();
  QString reason = pour(source, target, mostBytes);
  if (!target.close() && reason.isEmpty()) reason = systemReason();
  if (!reason.isEmpty()) ::unlink(QFile::encodeName(to).constData());
  return reason;
}

QString Disk::overwrite(const QString& path, const QByteArray& bytes) {
  Descriptor file(path, O_WRONLY | O_NOFOLLOW | O_NONBLOCK);
  struct stat status {};
  if (!file.isOpen() || ::fstat(file.number(), &status) != 0) return systemReason();
  if (!S_ISREG(status.st_mode)) return noFile();
  const bool isDone = ::ftruncate(file.number(), 0) == 0 && file.writeAll(bytes) && file.close();
  if (!isDone) return systemReason();
  note(path);
  return {};
}

QString Disk::rename(const QString& from, const QString& to) {
  const int result = std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData());
  if (result != 0) return systemReason();
  note(to);
  return {};
}

QString Disk::renameToNew(const QString& from, const QString& to) {
  const QByteArray source = QFile::encodeName(from);
  const QByteArray target = QFile::encodeName(to);
  if (::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0)
    return {};
  // Not every file system can do both in one.
  if (errno != EINVAL && errno != ENOSYS) return systemReason();
  struct stat status {};
  if (::lstat(target.constData(), &status) == 0) errno = EEXIST;
  const bool isFree = errno == ENOENT;
  return isFree && std::rename(source.constData(), target.constData()) == 0 ? QString() : systemReason();
}

QString Disk::remove(const QString& path) {
  return ::unlink(QFile::encodeName(path).constData()) == 0 ? QString() : systemReason();
}

QString Disk::makeFolder(const QString& path) {
  errno = 0;
  if (QDir().mkpath(path)) return {};
  return errno != 0 ? systemReason() : FileTexts::tr("the folder can't be made");
}

QString Disk::makeNewFolder(const QString& path) {
  return ::mkdir(QFile::encodeName(path).constData(), 0777) == 0 ? QString() : systemReason();
}

QString Disk::removeFolder(const QString& path) {
  return ::rmdir(QFile::encodeName(path).constData()) == 0 ? QString() : systemReason();
}

void Disk::note(const QString& path) {
  const QString real = QFileInfo(path).canonicalFilePath();
  const FileStamp stamp = stampOf(real);
  const QMutexLocker lock(&lock_);
  written_.insert(real, stamp);
}

FileStamp Disk::written(const QString& path) const {
  const QString real = QFileInfo(path).canonicalFilePath();
  const QMutexLocker lock(&lock_);
  return written_.value(real);
}

}  // namespace veneerer
