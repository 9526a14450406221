#include "images/picture.h"

#include <QHash>
#include <atomic>
#include <climits>
#include <mutex>

#include "files/filestamp.h"
#include "files/plainfile.h"
#include "images/picturecache.h"
#include "images/picturecopies.h"
#include "images/picturedecoding.h"
#include "images/pictureformat.h"

namespace veneerer {

namespace {

// Aligned to its own length, so that every compiler reads and writes it in one go.
struct alignas(sizeof(QSize)) SharedSize {
  QSize size;
};

}  // namespace

class PictureFile {
public:
  PictureFile(QString path, bool isIcon, std::shared_ptr<PictureCache> cache)
      : path_(std::move(path)), isIcon_(isIcon), cache_(std::move(cache)) {}
  explicit PictureFile(const QImage& image) : size_({image.size()}), drawn_(image) {}
  ~PictureFile() {
    if (cache_) cache_->drop(this);
  }
  PictureFile(const PictureFile&) = delete;
  PictureFile& operator=(const PictureFile&) = delete;

  const QString& path() const { return path_; }
  bool isIcon() const { return isIcon_; }
  PictureCache* cache() const { return cache_.get(); }

  QSize size() const { return size_.load().size; }

  /// What can be had without decoding: nothing for a picture that must be decoded first.
  std::optional<QImage> atHand(const PictureNeed& need) const {
    if (!cache_) return drawn_;
    const QSize size = this->size();
    if (size.isNull()) return QImage();
    std::optional<QImage> kept = size.isValid() ? cache_->find(this, copyFor(need, size)) : std::nullopt;
    const bool isCorner = kept && need.use == PictureNeed::Use::Natural;
    if (isCorner && !covers(kept->size(), need.size.boundedTo(size))) kept.reset();
    return kept;
  }

  QImage decoded(const PictureNeed& need) const {
    // One thread decodes, those that want the same picture wait for it.
    const std::lock_guard lock(cache_->decoding);
    if (const std::optional<QImage> kept = atHand(need)) return *kept;
    const std::optional<QImage> whole = cache_->find(this, PictureCopy::Whole);
    return kept(whole ? *whole : decodePicture(path_), need);
  }

  QImage thumbnail(QSize within) const {
    const std::lock_guard lock(cache_->decoding);
    return decodeThumbnail(path_, within);
  }

private:
  QImage kept(const QImage& picture, const PictureNeed& need) const {
    size_ = {picture.size()};
    const QImage copy = copyOf(picture, need);
    if (!copy.isNull()) cache_->keep(this, copyFor(need, picture.size()), copy);
    return copy;
  }

  QString path_;
  bool isIcon_ = false;
  std::shared_ptr<PictureCache> cache_;                  // null for a drawn picture
  mutable std::atomic<SharedSize> size_ = SharedSize();  // (0, 0) of one that can't be decoded
  QImage drawn_;
};

namespace {

// Any picture's own size is within.
constexpr PictureNeed kWhole{PictureNeed::Use::Natural, {INT_MAX, INT_MAX}};

QImage shownOf(const std::shared_ptr<PictureFile>& file, const PictureNeed& need) {
  if (!file) return {};
  if (const std::optional<QImage> atHand = file->atHand(need)) return *atHand;
  const auto& fetch = file->cache()->fetch;
  if (!fetch) return file->decoded(need);
  fetch(Picture(file), need);
  return file->atHand(need).value_or(QImage());
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
  return image(kWhole);
}

QImage Picture::image(const PictureNeed& need) const {
  if (!file_) return {};
  const std::optional<QImage> atHand = file_->atHand(need);
  return atHand ? *atHand : file_->decoded(need);
}

QImage Picture::shown(QSize devicePixels) const {
  return shownOf(file_, {PictureNeed::Use::Scaled, devicePixels});
}

QImage Picture::shownCorner(QSize pixels) const {
  return shownOf(file_, {PictureNeed::Use::Natural, pixels});
}

QSize Picture::size() const {
  return file_ ? file_->size() : QSize();
}

QImage Picture::thumbnail(QSize within) const {
  if (!file_) return {};
  const std::optional<QImage> atHand = file_->atHand({PictureNeed::Use::Scaled, within});
  if (!atHand) return file_->thumbnail(within);
  if (atHand->isNull() || covers(within, atHand->size())) return *atHand;
  const QSize size = atHand->size().scaled(within, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
  return atHand->scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

struct PictureStore::Entries {
  explicit Entries(qint64 decodedBytes) : cache(std::make_shared<PictureCache>(decodedBytes)) {}

  struct Entry {
    FileStamp stamp;
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
  const FileStamp stamp = stampOfPlain(path);
  if (!stamp.isThere()) return {};
  Entries::Entry& entry = entries_->byPath[path];
  std::shared_ptr<PictureFile> file = entry.file.lock();
  if (!file || entry.stamp != stamp) {
    const PictureFormat format = formatOf(headOfFile(path, kPictureHead));
    if (format == PictureFormat::None) return {};
    file = std::make_shared<PictureFile>(path, format == PictureFormat::Icon, entries_->cache);
    entry = {stamp, file};
  }
  return Picture(file);
}

void PictureStore::fetchWith(std::function<void(const Picture&, const PictureNeed&)> fetch) {
  entries_->cache->fetch = std::move(fetch);
}

void PictureStore::look(const QList<Picture>& pictures, qint64 enoughBytes) {
  QList<const void*> keys;
  for (const Picture& picture : pictures)
    if (!picture.isNull()) keys.append(reinterpret_cast<const void*>(picture.id()));
  entries_->cache->look(keys, enoughBytes);
}

qint64 PictureStore::decodedBytes() const {
  return entries_->cache->bytes();
}

}  // namespace veneerer
