#include "files/plainfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>

#include "files/texts.h"

namespace veneerer {

namespace {

constexpr qint64 kChunk = 1024 * 1024;  // bytes

// A saver replaces a file once; only somebody who wants to be in the way does it time after time.
constexpr int kMostAttempts = 100;

FileContent refused(const QString& reason) {
  return {FileContent::Outcome::Refused, {}, reason};
}

QString systemReason(int error) {
  return FileTexts::tr("the file can't be read: %1").arg(QString::fromLocal8Bit(std::strerror(error)));
}

bool isLink(const QByteArray& path) {
  struct stat status {};
  return ::lstat(path.constData(), &status) == 0 && S_ISLNK(status.st_mode);
}

/// Whether the path is the folder's, as it is written, and one name behind it.
bool isNameIn(const QString& folder, const QString& path) {
  return path.startsWith(folder + u'/') && path.lastIndexOf(u'/') == folder.size();
}

/// Where an opened file lies. One that bears the name no longer, because a saver has put another one in its
/// place meanwhile, can't be told.
enum class Whereabouts { Inside, Outside, Replaced };

/// A file that is open for reading, for as long as the object lives.
class OpenFile {
public:
  explicit OpenFile(const QString& path) : path_(QFile::encodeName(path)) {
    open(O_NOFOLLOW);
    isLink_ = descriptor_ < 0 && errno == ELOOP;
    if (isLink_) open(0);
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
    if (error_ == ENXIO) return refused(FileTexts::tr("there is something under this name that is no file"));
    if (error_ != ENOENT && error_ != ENOTDIR) return refused(systemReason(error_));
    if (isLink(path_)) return refused(FileTexts::tr("the file is a link that leads nowhere"));
    return {};
  }

  Whereabouts whereabouts(const QString& folder) const {
    const QString path = QFile::decodeName(path_);
    if (!isLink_ && isNameIn(folder, path)) return Whereabouts::Inside;
    const QString root = QFileInfo(folder).canonicalFilePath();
    const QString real = QFileInfo(path).canonicalFilePath();
    struct stat named {};
    if (root.isEmpty() || real.isEmpty() || ::stat(QFile::encodeName(real).constData(), &named) != 0)
      return Whereabouts::Replaced;
    if (!real.startsWith(root + u'/')) return Whereabouts::Outside;
    const bool isSame = named.st_dev == status_.st_dev && named.st_ino == status_.st_ino;
    return isSame ? Whereabouts::Inside : Whereabouts::Replaced;
  }

  /// As many bytes as there are, up to that number. False when reading fails; errno tells why.
  bool read(qint64 most, QByteArray& bytes) const {
    for (qint64 got = 1; got > 0 && bytes.size() < most;) {
      const qsizetype had = bytes.size();
      // The byte more shows the end.
      const qint64 rest = had <= size() && size() > 0 ? size() - had + 1 : kChunk;
      bytes.resize(had + std::min({rest, kChunk, most - had}));
      got = readSome(bytes.data() + had, bytes.size() - had);
      bytes.truncate(had + std::max<qint64>(got, 0));
      if (got < 0) return false;
    }
    return true;
  }

private:
  void open(int further) {
    // A pipe that nobody writes to would hold the program for ever, and a terminal would become its own.
    descriptor_ = ::open(path_.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY | further);
  }

  qint64 readSome(char* to, qint64 bytes) const {
    for (;;) {
      const ssize_t got = ::read(descriptor_, to, static_cast<std::size_t>(bytes));
      if (got >= 0 || errno != EINTR) return got;
    }
  }

  QByteArray path_;
  int descriptor_ = -1;
  bool isLink_ = false;
  int error_ = 0;
  struct stat status_ {};
};

FileContent tooLarge() {
  return refused(FileTexts::tr("the file is too large"));
}

FileContent contentOf(const OpenFile& file, qint64 mostBytes) {
  if (file.size() > mostBytes) return tooLarge();
  FileContent content{FileContent::Outcome::Read, {}, {}};
  if (!file.read(mostBytes + 1, content.bytes)) return refused(systemReason(errno));
  return content.bytes.size() > mostBytes ? tooLarge() : content;
}

using Take = FileContent (*)(const OpenFile& file, qint64 mostBytes);

FileContent lookedAt(const OpenFile& file, qint64 mostBytes) {
  return file.size() > mostBytes ? tooLarge() : FileContent{FileContent::Outcome::Read, {}, {}};
}

// What an opened file gives; nothing when it has to be opened anew. An empty folder stands for any.
std::optional<FileContent> taken(const QString& folder, const QString& path, qint64 mostBytes, Take take) {
  const OpenFile file(path);
  if (!file.isOpen()) return file.failure();
  if (!file.isPlain()) return refused(FileTexts::tr("there is something under this name that is no file"));
  const Whereabouts whereabouts = folder.isEmpty() ? Whereabouts::Inside : file.whereabouts(folder);
  if (whereabouts == Whereabouts::Outside)
    return refused(FileTexts::tr("the file lies outside the Skin's folder"));
  return whereabouts == Whereabouts::Inside ? std::optional(take(file, mostBytes)) : std::nullopt;
}

FileContent readChecked(const QString& folder, const QString& path, qint64 mostBytes, Take take) {
  for (int attempt = 0; attempt < kMostAttempts; ++attempt)
    if (const std::optional<FileContent> content = taken(folder, path, mostBytes, take)) return *content;
  return refused(FileTexts::tr("the file is replaced again and again while it is read"));
}

}  // namespace

FileContent readPlainFile(const QString& path, qint64 mostBytes) {
  return readChecked({}, path, mostBytes, contentOf);
}

FileContent readFileInside(const QString& folder, const QString& path, qint64 mostBytes) {
  return readChecked(folder, path, mostBytes, contentOf);
}

QString faultInside(const QString& folder, const QString& path, qint64 mostBytes) {
  return readChecked(folder, path, mostBytes, lookedAt).reason;
}

QByteArray headOfFile(const QString& path, qint64 bytes) {
  const OpenFile file(path);
  QByteArray head;
  return file.isPlain() && file.read(bytes, head) ? head : QByteArray();
}

struct PlainFileReader::Opened {
  explicit Opened(const QString& path) : file(path) {}
  OpenFile file;
};

PlainFileReader::PlainFileReader(const QString& path) : opened_(std::make_unique<Opened>(path)) {
  const OpenFile& file = opened_->file;
  if (!file.isOpen()) fault_ = file.failure().reason;
  if (!file.isOpen() && fault_.isEmpty()) fault_ = FileTexts::tr("the file isn't there");
  if (file.isOpen() && !file.isPlain())
    fault_ = FileTexts::tr("there is something under this name that is no file");
}

PlainFileReader::~PlainFileReader() = default;

QByteArray PlainFileReader::next() {
  QByteArray bytes;
  if (!fault_.isEmpty()) return {};
  if (!opened_->file.read(kChunk, bytes)) fault_ = systemReason(errno);
  return fault_.isEmpty() ? bytes : QByteArray();
}

bool haveSameBytes(const QString& path, const QString& other) {
  PlainFileReader first(path);
  PlainFileReader second(other);
  for (;;) {
    const QByteArray bytes = first.next();
    if (bytes != second.next() || !first.fault().isEmpty() || !second.fault().isEmpty()) return false;
    if (bytes.isEmpty()) return true;
  }
}

}  // namespace veneerer
