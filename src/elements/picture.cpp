#include "elements/picture.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>
#include <mutex>

namespace veneerer {

namespace {

// A stranger's picture may claim any size. This bound, in MiB of decoded pixels, leaves room for every screen
// that a jukebox has and keeps the process alive.
constexpr int kDecodeLimitMiB = 192;

QImage decode(const QString& path) {
  QImageReader::setAllocationLimit(kDecodeLimitMiB);
  QImageReader reader(path);
  reader.setDecideFormatFromContent(true);
  QImage image = reader.read();
  if (image.isNull()) return image;
  // The raster engine's own formats paint fastest; converting once here spares it at every repaint.
  return std::move(image).convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                  : QImage::Format_RGB32);
}

enum class Format { None, Picture, Icon };

// By the first bytes alone: decoding waits until the picture is seen.
Format formatOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return Format::None;
  const QByteArray head = file.read(8);
  for (const QByteArray& icon : {QByteArray("\0\0\1\0", 4), QByteArray("\0\0\2\0", 4)})
    if (head.startsWith(icon)) return Format::Icon;
  for (const char* picture : {"BM", "\xFF\xD8\xFF", "GIF8", "\x89PNG"})
    if (head.startsWith(picture)) return Format::Picture;
  return Format::None;
}

}  // namespace

class PictureFile {
public:
  PictureFile(QString path, bool isIcon) : path_(std::move(path)), isIcon_(isIcon) {}
  explicit PictureFile(QImage image) : image_(std::move(image)) {
    std::call_once(decoded_, [] {});
  }

  const QString& path() const { return path_; }

  const QImage& image() const {
    std::call_once(decoded_, [this] { image_ = decode(path_); });
    return image_;
  }

  bool isIcon() const { return isIcon_; }

private:
  QString path_;
  bool isIcon_ = false;
  mutable std::once_flag decoded_;
  mutable QImage image_;
};

Picture Picture::drawn(const QImage& image) {
  return Picture(std::make_shared<PictureFile>(image));
}

bool Picture::isDrawn() const {
  return file_ && file_->path().isEmpty();
}

QString Picture::path() const {
  return file_ ? file_->path() : QString();
}

bool Picture::isIcon() const {
  return file_ && !isDrawn() && file_->isIcon();
}

const QImage& Picture::image() const {
  static const QImage none;
  return file_ ? file_->image() : none;
}

struct PictureStore::Entries {
  struct Entry {
    qint64 modified = 0;  // milliseconds since the epoch
    qint64 size = 0;      // bytes
    std::weak_ptr<PictureFile> file;
  };
  QHash<QString, Entry> byPath;
};

PictureStore::PictureStore() : entries_(std::make_unique<Entries>()) {}
PictureStore::~PictureStore() = default;

Picture PictureStore::load(const QString& path) {
  const QFileInfo info(path);
  if (!info.isFile()) return {};
  const qint64 modified = info.lastModified().toMSecsSinceEpoch();
  Entries::Entry& entry = entries_->byPath[path];
  std::shared_ptr<PictureFile> file = entry.file.lock();
  if (!file || entry.modified != modified || entry.size != info.size()) {
    const Format format = formatOf(path);
    if (format == Format::None) return {};
    file = std::make_shared<PictureFile>(path, format == Format::Icon);
    entry = {modified, info.size(), file};
  }
  return Picture(file);
}

}  // namespace veneerer
