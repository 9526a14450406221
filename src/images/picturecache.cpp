#include "images/picturecache.h"

#include <algorithm>

namespace veneerer {

std::optional<DecodedPicture> PictureCache::find(const void* key) {
  const std::lock_guard lock(mutex_);
  const DecodedPicture* kept = kept_.object(key);
  return kept ? std::optional(*kept) : std::nullopt;
}

void PictureCache::keep(const void* key, const DecodedPicture& picture) {
  const std::lock_guard lock(mutex_);
  kept_.insert(key, new DecodedPicture(picture), std::max<qint64>(1, picture.bytes()));
}

void PictureCache::drop(const void* key) {
  const std::lock_guard lock(mutex_);
  kept_.remove(key);
}

qint64 PictureCache::bytes() const {
  const std::lock_guard lock(mutex_);
  return kept_.totalCost();
}

}  // namespace veneerer
