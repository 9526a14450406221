#include "images/picture.h"

#include <QDateTime>
#include <QFileInfo>
#include <QHash>
#include <atomic>
#include <mutex>

#include "files/plainfile.h"
#include "images/picturecache.h"
#include "images/pictureformat.h"

namespace veneerer {

class PictureFile {
public:
  PictureFile(QString path, bool isIcon, std::shared_ptr<PictureCache> cache)
      : path_(std::move(path)), isIcon_(isIcon), cache_(std::move(cache)) {}
  explicit PictureFile(const QImage& image) : drawn_{image, image} {}
  ~PictureFile() {
    if (cache_) cache_->drop(this);
  }
  PictureFile(const PictureFile&) = delete;
  PictureFile& operator=(const PictureFile&) = delete;

  const QString& path() const { return path_; }
  bool isIcon() const { return isIcon_; }
  PictureCache* cache() const { return cache_.get(); }

  /// What can be had without decoding: nothing for a picture that must be decoded first.
  std::optional<DecodedPicture> atHand() const {
    if (!cache_) return drawn_;
    std::optional<DecodedPicture> kept = cache_->find(this);
    return !kept && isBroken_ ? DecodedPicture() : kept;
  }

  DecodedPicture decoded() const {
    // One thread decodes, those that want the same picture wait for it.
    const std::lock_guard lock(decoding_);
    if (const std::optional<DecodedPicture> kept = atHand()) return *kept;
    const DecodedPicture made = decodePicture(path_);
    if (made.isNull())
      isBroken_ = true;
    else
      cache_->keep(this, made);
    return made;
  }

private:
  QString path_;
  bool isIcon_ = false;
  std::shared_ptr<PictureCache> cache_;  // null for a drawn picture
  DecodedPicture drawn_;
  mutable std::mutex decoding_;
  mutable std::atomic<bool> isBroken_ = false;
};

namespace {

DecodedPicture decodedOf(const std::shared_ptr<PictureFile>& file) {
  if (!file) return {};
  const std::optional<DecodedPicture> atHand = file->atHand();
  return atHand ? *atHand : file->decoded();
}

DecodedPicture shownOf(const std::shared_ptr<PictureFile>& file) {
  if (!file || !file->cache() || !file->cache()->fetch) return decodedOf(file);
  if (const std::optional<DecodedPicture> atHand = file->atHand()) return *atHand;
  file->cache()->fetch(Picture(file));
  return file->atHand().value_or(DecodedPicture());
}

bool covers(QSize size, QSize other) {
  return size.width() >= other.width() && size.height() >= other.height();
}

}  // namespace

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

QImage Picture::image() const {
  return decodedOf(file_).whole;
}

QImage Picture::shown() const {
  return shownOf(file_).whole;
}

QImage Picture::shown(QSize devicePixels) const {
  const DecodedPicture picture = shownOf(file_);
  return covers(picture.reduced.size(), devicePixels) ? picture.reduced : picture.whole;
}

QImage Picture::thumbnail(QSize within) const {
  if (!file_) return {};
  const std::optional<DecodedPicture> atHand = file_->atHand();
  if (!atHand) return decodeThumbnail(file_->path(), within);
  const QImage& image = atHand->reduced;
  if (image.isNull() || covers(within, image.size())) return image;
  const QSize size = image.size().scaled(within, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
  return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

struct PictureStore::Entries {
  explicit Entries(qint64 decodedBytes) : cache(std::make_shared<PictureCache>(decodedBytes)) {}

  struct Entry {
    qint64 modified = 0;  // milliseconds since the epoch
    qint64 size = 0;      // bytes
    std::weak_ptr<PictureFile> file;
  };
  std::shared_ptr<PictureCache> cache;
  QHash<QString, Entry> byPath;
};

PictureStore::PictureStore() : PictureStore(kDecodedBytes) {}
PictureStore::PictureStore(qint64 decodedBytes) : entries_(std::make_unique<Entries>(decodedBytes)) {}
PictureStore::~PictureStore() {
  // Pictures may outlive the store, but not who fetched them.
  fetchWith({});
}

Picture PictureStore::load(const QString& path) {
  const QFileInfo info(path);
  if (!info.isFile()) return {};
  const qint64 modified = info.lastModified().toMSecsSinceEpoch();
  Entries::Entry& entry = entries_->byPath[path];
  std::shared_ptr<PictureFile> file = entry.file.lock();
  if (!file || entry.modified != modified || entry.size != info.size()) {
    const PictureFormat format = formatOf(headOfFile(path, kPictureHead));
    if (format == PictureFormat::None) return {};
    file = std::make_shared<PictureFile>(path, format == PictureFormat::Icon, entries_->cache);
    entry = {modified, info.size(), file};
  }
  return Picture(file);
}

void PictureStore::fetchWith(std::function<void(const Picture&)> fetch) {
  entries_->cache->fetch = std::move(fetch);
}

qint64 PictureStore::decodedBytes() const {
  return entries_->cache->bytes();
}

}  // namespace veneerer
