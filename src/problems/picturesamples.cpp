#include "problems/picturesamples.h"

#include "images/picturedecoding.h"

namespace veneerer {

namespace {

// Far more than a Skin has.
constexpr int kMostSamples = 1000;
constexpr QSize kSampleSize(256, 256);

}  // namespace

PictureSamples::PictureSamples(qint64 allowance) : kept_(kMostSamples), left_(allowance) {}

PictureSamples::Kept& PictureSamples::keptOf(const Picture& picture) {
  if (Kept* known = kept_.object(picture.id())) return *known;
  auto* kept = new Kept{picture, {}};
  if (picture.isDrawn()) {
    kept->sample.size = picture.image().size();
  } else if (!picture.isNull()) {
    const PictureCost cost = costOfPicture(picture.path());
    if (cost.canBeDecoded) kept->sample.size = cost.size;
    kept->work = cost.work;
  }
  kept_.insert(picture.id(), kept);
  return *kept;
}

QSize PictureSamples::sizeOf(const Picture& picture) {
  return keptOf(picture).sample.size;
}

const PictureSample* PictureSamples::of(const Picture& picture) {
  Kept& kept = keptOf(picture);
  if (kept.isMade || kept.sample.size.isEmpty()) return &kept.sample;
  if (kept.work > left_) return nullptr;
  left_ -= kept.work;
  kept.sample.image = picture.thumbnail(kSampleSize);
  kept.isMade = true;
  return &kept.sample;
}

}  // namespace veneerer
