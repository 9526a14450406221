#include "images/picturecache.h"

#include <algorithm>

namespace veneerer {

namespace {

constexpr PictureCopy kCopies[] = {PictureCopy::Reduced, PictureCopy::Corner, PictureCopy::Whole};

RecentImages::Key keyOf(const void* picture, PictureCopy copy) {
  return {picture, static_cast<int>(copy)};
}

}  // namespace

std::optional<QImage> PictureCache::find(const void* key, PictureCopy copy) {
  const std::lock_guard lock(mutex_);
  const QImage* kept = imagesOf(copy).find(keyOf(key, copy), ++now_);
  return kept ? std::optional(*kept) : std::nullopt;
}

void PictureCache::keep(const void* key, PictureCopy copy, const QImage& image) {
  const std::lock_guard lock(mutex_);
  const bool isWhole = copy == PictureCopy::Whole;
  const qint64 wholes = wholes_.bytes() + (isWhole ? bytesOf(image) : 0);
  const qint64 mostOfCopies = mostBytes_ - std::min(wholes, mostBytes_ / 4 * 3);
  copies_.shrink(mostOfCopies);
  if (!isWhole) put(keyOf(key, copy), image, copies_, mostOfCopies);
  wholes_.shrink(mostBytes_ - copies_.bytes());
  if (isWhole) put(keyOf(key, copy), image, wholes_, mostBytes_ - copies_.bytes());
  dropUnseen();
}

void PictureCache::drop(const void* key) {
  const std::lock_guard lock(mutex_);
  for (const PictureCopy copy : kCopies) imagesOf(copy).remove(keyOf(key, copy));
}

qint64 PictureCache::bytes() const {
  const std::lock_guard lock(mutex_);
  return copies_.bytes() + wholes_.bytes();
}

void PictureCache::look(const QList<const void*>& keys, qint64 enoughBytes) {
  const std::lock_guard lock(mutex_);
  enoughBytes_ = enoughBytes;
  previous_ = sight_;
  sight_ = ++now_;
  for (const void* key : keys)
    for (const PictureCopy copy : kCopies) imagesOf(copy).find(keyOf(key, copy), now_);
  dropUnseen();
}

RecentImages& PictureCache::imagesOf(PictureCopy copy) {
  return copy == PictureCopy::Whole ? wholes_ : copies_;
}

void PictureCache::put(const RecentImages::Key& key, const QImage& image, RecentImages& into,
                       qint64 mostBytes) {
  into.remove(key);
  if (bytesOf(image) > mostBytes) return;
  into.shrink(mostBytes - bytesOf(image));
  into.insert(key, image, ++now_);
}

void PictureCache::dropUnseen() {
  while (copies_.bytes() + wholes_.bytes() > enoughBytes_) {
    RecentImages& images = copies_.oldest() < wholes_.oldest() ? copies_ : wholes_;
    if (images.oldest() >= previous_) return;
    images.removeOldest();
  }
}

}  // namespace veneerer
