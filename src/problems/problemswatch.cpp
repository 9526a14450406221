#include "problems/problemswatch.h"

#include <algorithm>

#include "problems/referencedamage.h"
#include "problems/screenplace.h"
#include "problems/unnamedfiles.h"

namespace veneerer {

ProblemsWatch::ProblemsWatch(State& state, const SkinFolder& folder, const Screen& screen,
                             const QString& coverFileName, int touch)
    : state_(state), folder_(folder), screen_(screen), coverFileName_(coverFileName), touch_(touch) {
  for (Window* window : std::initializer_list<Window*>{&state.form1, &state.form4, &state.names})
    collect(*window);
  for (const Element* element : elements_)
    if (const Element* slot = state.names.of(*element)) buttonOf_.insert(slot, element);
  judgeAll();
}

void ProblemsWatch::collect(Window& window) {
  for (const Family* family : window.families())
    elements_.insert(elements_.end(), family->members().begin(), family->members().end());
}

void ProblemsWatch::judgeAll() {
  judge_.emplace(state_, screen_, writtenPlaces(state_, coverFileName_), touch_);
  ofFolder_ = unnamedFiles(state_, folder_);
  for (const Element* element : elements_) judgeAtOnce(*element);
  awaitAll();
}

void ProblemsWatch::judge(const Element& element) {
  const bool movesLines = &element == &*state_.globals.LastCoverIndex;
  if (movesLines) judge_->setPlaces(writtenPlaces(state_, coverFileName_));
  if (movesLines || &element == &state_.form1) return awaitAll();
  const Window& window = element.window();
  if (&window != &state_.form1 && &window != &state_.form4 && &window != &state_.names) return;
  judgeAtOnce(element);
  if (&window == &state_.form1)
    awaitScreenOf(element);
  else
    await(element);
}

bool ProblemsWatch::work(int elements) {
  for (; elements > 0 && !waiting_.empty(); --elements) {
    const Element& element = *waiting_.front();
    waiting_.pop_front();
    isWaiting_.remove(&element);
    judgeAtOnce(element);
    judgeLater(element);
  }
  return !waiting_.empty();
}

Findings ProblemsWatch::findings() const {
  Findings all;
  for (const Element* element : elements_) all << of(*element);
  all << ofFolder_;
  std::ranges::stable_sort(all, {}, &Finding::kind);
  return all;
}

Findings ProblemsWatch::of(const Element& element) const {
  const Known known = known_.value(&element);
  return known.atOnce + known.later;
}

void ProblemsWatch::judgeAtOnce(const Element& element) {
  known_[&element].atOnce = judge_->damage(element) + judge_->hintsAtOnce(element);
}

void ProblemsWatch::judgeLater(const Element& element) {
  known_[&element].later = judge_->hintsByGround(element) + referenceFindings(element);
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

Findings ProblemsWatch::referenceFindings(const Element& element) {
  if (element.kind() != Kind::ImageSlot) return {};
  const auto& name = element.as<StoredValue>(Property::Name);
  const QString damage = referenceDamage(folder_, trials_, name.text());
  if (damage.isEmpty()) return {};
  Finding finding = judge_->found(FindingKind::Warning, element, Property::Name, damage);
  if (const Element* button = buttonOf_.value(&element)) finding.element = button->key();
  return {finding};
}

}  // namespace veneerer
