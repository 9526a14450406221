#include "images/picturetrials.h"

#include <algorithm>

#include "images/picturedecoding.h"

namespace veneerer {

namespace {

// All of a file is read for a picture of any size, and it takes the least memory.
constexpr QSize kTrialSize(16, 16);

}  // namespace

PictureTrial PictureTrials::of(const QString& path) {
  const auto known = known_.constFind(path);
  return known != known_.constEnd() ? *known : *known_.insert(path, tried(path));
}

int PictureTrials::untried() const {
  return static_cast<int>(std::ranges::count(known_, PictureTrial::Untried));
}

PictureTrial PictureTrials::tried(const QString& path) {
  if (left_ <= 0) return PictureTrial::Untried;
  const PictureCost cost = costOfPicture(path);
  left_ -= cost.work;
  if (!cost.canBeDecoded) return PictureTrial::Broken;
  if (left_ < 0) return PictureTrial::Untried;
  return decodeThumbnail(path, kTrialSize).isNull() ? PictureTrial::Broken : PictureTrial::Fine;
}

}  // namespace veneerer
