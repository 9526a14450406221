#include "recolouring/faintcaptions.h"

#include "problems/screenplace.h"

namespace veneerer {

namespace {

PixelScale scaleOf(const Screen& screen) {
  return {1 / screen.twipsPerPixelX(), 1 / screen.twipsPerPixelY()};
}

}  // namespace

FaintCaptions::FaintCaptions(const State& state, const Screen& screen)
    : state_(state),
      captionLayouts_(pictures_, scaleOf(screen)),
      contrasts_(state, pictures_, captionLayouts_, scaleOf(screen)) {}

void FaintCaptions::forget() {
  isGathered_ = false;
}

void FaintCaptions::gather() {
  if (std::exchange(isGathered_, true)) return;
  captions_.clear();
  for (const Family* family : state_.form1.families())
    for (Element* element : family->members())
      if (element->container())
        if (const std::optional<SeenCaption> seen = contrasts_.seen(*element))
          captions_.push_back({element, screenEntryOf(state_, *element), *seen});
}

void FaintCaptions::judge(const Dress& dress, int entry) {
  gather();
  dress_ = dress;
  found_.clear();
  waiting_.clear();
  if (dress.isEmpty()) return;
  for (const bool isHere : {false, true})
    for (std::size_t i = captions_.size(); i-- > 0;)
      if ((captions_[i].entry == entry) == isHere) waiting_.push_back(i);
}

bool FaintCaptions::work(int captions) {
  for (; captions > 0 && !waiting_.empty(); --captions) {
    judgeOne(captions_[waiting_.back()]);
    waiting_.pop_back();
  }
  return !waiting_.empty();
}

void FaintCaptions::judgeOne(Caption& caption) {
  const std::optional<double> after = contrasts_.of(caption.seen, dress_);
  if (!after || *after >= caption.seen.least) return;
  const std::optional<double> before = ownContrast(caption);
  if (before && *before >= caption.seen.least) found_.push_back({caption.element, *before, *after});
}

std::optional<double> FaintCaptions::ownContrast(Caption& caption) {
  if (!caption.own) caption.own = contrasts_.of(caption.seen);
  return caption.own;
}

}  // namespace veneerer
