#include "images/recentimages.h"

#include <algorithm>
#include <limits>

namespace veneerer {

qint64 bytesOf(const QImage& image) {
  return std::max<qint64>(1, image.sizeInBytes());
}

const QImage* RecentImages::find(const Key& key, qint64 now) {
  const auto found = places_.constFind(key);
  if (found == places_.constEnd()) return nullptr;
  const Place place = *found;
  place->asked = now;
  kept_.splice(kept_.end(), kept_, place);
  return &place->image;
}

void RecentImages::insert(const Key& key, const QImage& image, qint64 now) {
  remove(key);
  places_.insert(key, kept_.insert(kept_.end(), {key, image, now}));
  bytes_ += bytesOf(image);
}

void RecentImages::remove(const Key& key) {
  const auto found = places_.constFind(key);
  if (found != places_.constEnd()) remove(*found);
}

void RecentImages::remove(Place place) {
  bytes_ -= bytesOf(place->image);
  places_.remove(place->key);
  kept_.erase(place);
}

void RecentImages::shrink(qint64 mostBytes) {
  while (bytes_ > mostBytes && !kept_.empty()) removeOldest();
}

void RecentImages::removeOldest() {
  remove(kept_.begin());
}

qint64 RecentImages::oldest() const {
  return kept_.empty() ? std::numeric_limits<qint64>::max() : kept_.front().asked;
}

}  // namespace veneerer
