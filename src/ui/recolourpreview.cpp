#include "ui/recolourpreview.h"

#include <QElapsedTimer>
#include <chrono>

#include "canvas/screens.h"

namespace veneerer {

namespace {

// How long captions are judged before the operator's next doing comes in between. With the repaint it stays
// within a frame.
constexpr std::chrono::milliseconds kPatience(2);
constexpr int kAtOnce = 4;  // captions

}  // namespace

RecolourPreview::RecolourPreview(const Ui& ui, CanvasWidget& canvas)
    : state_(ui.hands.state()),
      canvas_(&canvas),
      watching_(state_.board.watch([this](const Change& change) { changed(change); })),
      faint_(state_, ui.hands.screen()) {
  for (QTimer* timer : {&refreshing_, &applying_}) {
    timer->setSingleShot(true);
    timer->setInterval(0);
  }
  refreshing_.callOnTimeout(this, &RecolourPreview::refresh);
  applying_.callOnTimeout(this, &RecolourPreview::apply);
  judging_.callOnTimeout(this, &RecolourPreview::judgeSome);
  gatherPlaces();
}

RecolourPreview::~RecolourPreview() {
  if (canvas_) canvas_->setDress({});
}

void RecolourPreview::show(const ColourMap& map, Scope scope) {
  map_ = map;
  const bool isOther = std::exchange(scope_, scope) != scope;
  if (isOther) gatherPlaces();
  applying_.start();
  if (isOther) Q_EMIT placesChanged();
}

const Dress& RecolourPreview::dress() {
  if (refreshing_.isActive()) refresh();
  if (applying_.isActive()) apply();
  return dress_;
}

// An action of the operator changes many values, one after the other.
void RecolourPreview::changed(const Change& change) {
  isMoved_ = isMoved_ || propertyType(change.property) != ValueType::Colour;
  refreshing_.start();
}

void RecolourPreview::refresh() {
  refreshing_.stop();
  if (std::exchange(isMoved_, false)) faint_.forget();
  gatherPlaces();
  applying_.start();
  Q_EMIT placesChanged();
}

void RecolourPreview::gatherPlaces() {
  places_ = storedColours(state_);
  if (scope_ == Scope::ThisScreen) places_ = onScreen(state_, places_, shownEntry(state_));
}

void RecolourPreview::apply() {
  applying_.stop();
  dress_ = recoloured(places_, map_);
  if (canvas_) canvas_->setDress(dress_);
  faint_.judge(dress_, shownEntry(state_));
  isTold_ = false;
  judging_.start(0);
}

void RecolourPreview::judgeSome() {
  QElapsedTimer time;
  time.start();
  bool hasMore = true;
  while (hasMore && !time.hasExpired(kPatience.count())) hasMore = faint_.work(kAtOnce);
  if (!hasMore) judging_.stop();
  // Telling it takes time, too.
  if (!hasMore || !std::exchange(isTold_, true)) Q_EMIT judged(!hasMore);
}

}  // namespace veneerer
