#include "problems/problemswatch.h"

#include <algorithm>

#include "problems/pictureremedies.h"
#include "problems/referencedamage.h"
#include "problems/screenplace.h"
#include "problems/unnamedfiles.h"
#include "problems/wholeskin.h"

namespace veneerer {

ProblemsWatch::ProblemsWatch(State& state, const SkinFolder& folder, const Screen& screen,
                             const QString& coverFileName, int touch, Depth depth)
    : state_(state),
      folder_(folder),
      screen_(screen),
      coverFileName_(coverFileName),
      touch_(touch),
      depth_(depth),
      references_(state),
      pictures_(folder) {
  for (Window* window : std::initializer_list<Window*>{&state.form1, &state.form4, &state.names})
    collect(*window);
  judgeAll();
}

void ProblemsWatch::collect(Window& window) {
  for (const Family* family : window.families())
    elements_.insert(elements_.end(), family->members().begin(), family->members().end());
}

void ProblemsWatch::judgeAll() {
  judge_.emplace(state_, screen_, writtenPlaces(state_, coverFileName_), touch_);
  if (depth_ == Depth::Hints) ofFolder_ = unnamedFiles(state_, folder_);
  for (const Element* element : elements_) judgeAtOnce(*element);
  awaitAll();
}

void ProblemsWatch::judge(const Element& element) {
  isSkinJudged_ = false;
  const bool movesLines = &element == &*state_.globals.LastCoverIndex;
  if (movesLines) judge_->setPlaces(writtenPlaces(state_, coverFileName_));
  if (movesLines || &element == &state_.form1) return awaitAll();
  const Window& window = element.window();
  if (&window != &state_.form1 && &window != &state_.form4 && &window != &state_.names) return;
  judgeAtOnce(element);
  awaitSlots(element);
  if (&window == &state_.form1 && depth_ == Depth::Hints)
    awaitScreenOf(element);
  else
    await(element);
}

void ProblemsWatch::filesChanged(const QStringList& paths) {
  for (const QString& path : paths) trials_.forget(path);
  folder_ = SkinFolder(folder_.path());
  pictures_ = SkinPictures(folder_);
  isSkinJudged_ = false;
  if (depth_ == Depth::Hints) ofFolder_ = unnamedFiles(state_, folder_);
  for (const Family* family : state_.names.families())
    for (const Element* slot : family->members()) await(*slot);
}

bool ProblemsWatch::work(int elements) {
  for (; elements > 0 && !waiting_.empty(); --elements) {
    const Element& element = *waiting_.front();
    waiting_.pop_front();
    isWaiting_.remove(&element);
    judgeAtOnce(element);
    judgeLater(element);
  }
  if (waiting_.empty() && !std::exchange(isSkinJudged_, true))
    ofSkin_ = wholeSkinFindings(state_, folder_, screen_);
  return !waiting_.empty();
}

Findings ProblemsWatch::findings() const {
  Findings all;
  for (const Element* element : elements_) all << of(*element);
  all << ofSkin_ << ofFolder_;
  std::ranges::stable_sort(all, {}, &Finding::kind);
  return all;
}

Findings ProblemsWatch::of(const Element& element) const {
  const Known known = known_.value(&element);
  return known.atOnce + known.later;
}

void ProblemsWatch::judgeAtOnce(const Element& element) {
  Findings& found = known_[&element].atOnce;
  found = judge_->damage(element);
  if (depth_ == Depth::Hints) found << judge_->hintsAtOnce(element);
}

void ProblemsWatch::judgeLater(const Element& element) {
  Findings& found = known_[&element].later;
  found = referenceFindings(element);
  if (depth_ == Depth::Hints) found << judge_->hintsByGround(element);
}

void ProblemsWatch::await(const Element& element) {
  if (isWaiting_.contains(&element)) return;
  isWaiting_.insert(&element);
  waiting_.push_back(&element);
}

void ProblemsWatch::awaitAll() {
  for (const Element* element : elements_) await(*element);
}

void ProblemsWatch::awaitScreenOf(const Element& element) {
  const int entry = screenEntryOf(state_, element);
  await(element);
  for (const Family* family : state_.form1.families())
    for (const Element* other : family->members())
      if (screenEntryOf(state_, *other) == entry) await(*other);
}

void ProblemsWatch::awaitSlots(const Element& element) {
  for (const Element* slot : references_.slotsOf(element)) await(*slot);
}

Findings ProblemsWatch::referenceFindings(const Element& element) {
  if (element.kind() != Kind::ImageSlot) return {};
  const auto& slot = cast<ImageSlot>(element);
  const QString damage = referenceDamage(namedPicture(folder_, slot.text()), trials_, slot.text());
  if (damage.isEmpty()) return {};
  Finding finding = judge_->found(FindingKind::Warning, element, Property::Name, damage);
  if (const Element* shows = references_.onCanvas(slot)) finding.element = shows->key();
  finding.remedies = pictureRemedies(folder_, pictures_, trials_, slot, pictureShown(slot));
  return {finding};
}

/// The path of the picture that was chosen for the slot: its reference has that file's bare name.
QString ProblemsWatch::pictureShown(const ImageSlot& slot) const {
  for (const Element* element : references_.elementsOf(slot)) {
    const QString path = element->as<Picture>(Property::Picture).path();
    if (!path.isEmpty() && bareFileName(path) == bareFileName(slot.text())) return path;
  }
  return {};
}

}  // namespace veneerer
