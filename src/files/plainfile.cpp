#include "files/plainfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <cstring>

namespace veneerer {

namespace {

constexpr qint64 kChunk = 1024 * 1024;  // bytes

FileContent refused(const QString& reason) {
  return {FileContent::Outcome::Refused, {}, reason};
}

QString systemReason(int error) {
  return QStringLiteral("the file can't be read: ") + QString::fromLocal8Bit(std::strerror(error));
}

bool isLink(const QByteArray& path) {
  struct stat status {};
  return ::lstat(path.constData(), &status) == 0 && S_ISLNK(status.st_mode);
}

/// A file that is open for reading, for as long as the object lives.
class OpenFile {
public:
  explicit OpenFile(const QString& path) : path_(QFile::encodeName(path)) {
    // A pipe that nobody writes to would hold the program for ever, and a terminal would become its own.
    descriptor_ = ::open(path_.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    error_ = descriptor_ < 0 ? errno : 0;
    if (isOpen() && ::fstat(descriptor_, &status_) != 0) error_ = errno;
  }
  ~OpenFile() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  bool isOpen() const { return error_ == 0; }
  bool isPlain() const { return isOpen() && S_ISREG(status_.st_mode); }
  /// What the file system tells; files that a system makes up while they are read tell 0.
  qint64 size() const { return status_.st_size; }

  /// Why the file couldn't be opened.
  FileContent failure() const {
    if (error_ == ENXIO) return refused(QStringLiteral("there is something under this name that is no file"));
    if (error_ != ENOENT && error_ != ENOTDIR) return refused(systemReason(error_));
    if (isLink(path_)) return refused(QStringLiteral("the file is a link that leads nowhere"));
    return {};
  }

  bool liesIn(const QString& folder) const {
    const QString root = QFileInfo(folder).canonicalFilePath();
    const QString real = QFileInfo(QFile::decodeName(path_)).canonicalFilePath();
    struct stat named {};
    return !root.isEmpty() && real.startsWith(root + u'/') &&
           ::stat(QFile::encodeName(real).constData(), &named) == 0 && named.st_dev == status_.st_dev &&
           named.st_ino == status_.st_ino;
  }

  /// As many bytes as there are, up to that number. False when reading fails; errno tells why.
  bool read(qint64 most, QByteArray& bytes) const {
    bytes.reserve(std::min(size(), most));
    for (qint64 got = 1; got > 0 && bytes.size() < most;) {
      const qsizetype had = bytes.size();
      bytes.resize(had + std::min(kChunk, most - had));
      got = readSome(bytes.data() + had, bytes.size() - had);
      bytes.truncate(had + std::max<qint64>(got, 0));
      if (got < 0) return false;
    }
    return true;
  }

private:
  qint64 readSome(char* to, qint64 bytes) const {
    for (;;) {
      const ssize_t got = ::read(descriptor_, to, static_cast<std::size_t>(bytes));
      if (got >= 0 || errno != EINTR) return got;
    }
  }

  QByteArray path_;
  int descriptor_ = -1;
  int error_ = 0;
  struct stat status_ {};
};

FileContent contentOf(const OpenFile& file, qint64 mostBytes) {
  const auto tooLarge = [] { return refused(QStringLiteral("the file is too large")); };
  if (file.size() > mostBytes) return tooLarge();
  FileContent content{FileContent::Outcome::Read, {}, {}};
  if (!file.read(mostBytes + 1, content.bytes)) return refused(systemReason(errno));
  return content.bytes.size() > mostBytes ? tooLarge() : content;
}

// An empty folder stands for any.
FileContent readChecked(const QString& folder, const QString& path, qint64 mostBytes) {
  const OpenFile file(path);
  if (!file.isOpen()) return file.failure();
  if (!file.isPlain()) return refused(QStringLiteral("there is something under this name that is no file"));
  if (!folder.isEmpty() && !file.liesIn(folder))
    return refused(QStringLiteral("the file lies outside the Skin's folder"));
  return contentOf(file, mostBytes);
}

}  // namespace

FileContent readPlainFile(const QString& path, qint64 mostBytes) {
  return readChecked({}, path, mostBytes);
}

FileContent readFileInside(const QString& folder, const QString& path, qint64 mostBytes) {
  return readChecked(folder, path, mostBytes);
}

QByteArray headOfFile(const QString& path, qint64 bytes) {
  const OpenFile file(path);
  QByteArray head;
  return file.isPlain() && file.read(bytes, head) ? head : QByteArray();
}

}  // namespace veneerer
