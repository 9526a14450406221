#include "images/picturecache.h"

#include <algorithm>

namespace veneerer {

namespace {

std::pair<const void*, int> keyOf(const void* picture, PictureCopy copy) {
  return {picture, static_cast<int>(copy)};
}

std::optional<QImage> valueOf(const QImage* kept) {
  return kept ? std::optional(*kept) : std::nullopt;
}

}  // namespace

std::optional<QImage> PictureCache::find(const void* key, PictureCopy copy) {
  const std::lock_guard lock(mutex_);
  return valueOf(copy == PictureCopy::Whole ? wholes_.object(key) : copies_.object(keyOf(key, copy)));
}

void PictureCache::keep(const void* key, PictureCopy copy, const QImage& image) {
  const std::lock_guard lock(mutex_);
  const qint64 bytes = std::max<qint64>(1, image.sizeInBytes());
  const bool isWhole = copy == PictureCopy::Whole;
  const qint64 wholes = wholes_.totalCost() + (isWhole ? bytes : 0);
  copies_.setMaxCost(mostBytes_ - std::min(wholes, mostBytes_ / 4 * 3));
  if (!isWhole) copies_.insert(keyOf(key, copy), new QImage(image), bytes);
  wholes_.setMaxCost(mostBytes_ - copies_.totalCost());
  if (isWhole) wholes_.insert(key, new QImage(image), bytes);
}

void PictureCache::drop(const void* key) {
  const std::lock_guard lock(mutex_);
  for (const PictureCopy copy : {PictureCopy::Reduced, PictureCopy::Corner}) copies_.remove(keyOf(key, copy));
  wholes_.remove(key);
}

qint64 PictureCache::bytes() const {
  const std::lock_guard lock(mutex_);
  return copies_.totalCost() + wholes_.totalCost();
}

}  // namespace veneerer
