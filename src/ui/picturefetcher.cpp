#include "ui/picturefetcher.h"

#include <qtconcurrenttask.h>

#include <QSemaphore>
#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

#include "images/picturecache.h"
#include "images/picturedecoding.h"
#include "painting/canvassize.h"

namespace veneerer {

namespace {

constexpr int kFrame = 12;  // milliseconds; the rest of a frame is left for painting

enum Priority { Behind = 0, Ahead = 1 };

// What the pictures of screens that aren't seen any more may take with all others: going back to one of them
// decodes nothing. Those of a screen take as much as the canvas at the most, and the frame's once more.
constexpr qint64 kKeptBytes = 16LL * 1024 * 1024;
constexpr qint64 kKeptCanvases = 3;
constexpr qint64 kPixelBytes = 4;

qint64 keptBytes(QSize canvas) {
  return std::min(kDecodedBytes, kKeptBytes + kKeptCanvases * kPixelBytes * pixelsOf(canvas));
}

void gather(const Element& element, QList<Picture>& pictures) {
  if (element.has(Property::Picture)) pictures.append(element.as<Picture>(Property::Picture));
  for (const Element* child : element.children())
    if (child->isVisible()) gather(*child, pictures);
}

}  // namespace

PictureFetcher::PictureFetcher(Operator& hands) : state_(hands.state()), screen_(hands.screen()) {
  pool_.setMaxThreadCount(1);
  begin();
  watching_ = state_.board.watch([this](const Change& change) { changed(change); });
  connect(&hands, &Operator::acted, this, [this] { seen_.clear(); });
}

void PictureFetcher::changed(const Change& change) {
  seen_.clear();
  const bool isChoice = &change.element == &*state_.form6.Combo6 && change.property == Property::ListIndex;
  if (!isChoice || std::exchange(isTurning_, true)) return;
  // The screen becomes visible behind this.
  QMetaObject::invokeMethod(this, &PictureFetcher::lookAtCanvas, Qt::QueuedConnection);
}

void PictureFetcher::lookAtCanvas() {
  isTurning_ = false;
  Stage shown;
  std::ranges::copy_if(state_.form1.children(), std::back_inserter(shown), &Element::isVisible);
  lookAt(shown);
}

void PictureFetcher::lookAt(const Stage& stage) {
  QList<Picture> pictures = {state_.form1.picture()};
  for (const Element* element : stage) gather(*element, pictures);
  const QSize canvas = canvasSize(state_.form1, screen_).pixels;
  state_.pictures.look(pictures, isAllSeen_ ? kDecodedBytes : keptBytes(canvas));
  // What is let go may be asked for again.
  seen_.clear();
}

void PictureFetcher::begin() {
  state_.pictures.fetchWith([this](const Picture& picture, const PictureNeed& need) {
    fetch({picture, need});
  });
}

PictureFetcher::~PictureFetcher() {
  state_.pictures.fetchWith({});
  pool_.clear();
  pool_.waitForDone();
}

QFuture<QImage> PictureFetcher::thumbnail(const Picture& picture, QSize within) {
  return QtConcurrent::task(&Picture::thumbnail)
      .withArguments(picture, within)
      .onThreadPool(pool_)
      .withPriority(Behind)
      .spawn();
}

// A screen may show more pictures than can be kept decoded. Each is fetched once for what the operator did
// last, or the screen would be painted over and over as they push one another out.
void PictureFetcher::fetch(const Task& task) {
  if (asked_.contains(task) || seen_.contains(task)) return;
  asked_.append(task);
  const auto done = std::make_shared<QSemaphore>();
  pool_.start(
      [this, task, done] {
        task.picture.image(task.need);
        done->release();
        QMetaObject::invokeMethod(
            this, [this, task] { arrived(task); }, Qt::QueuedConnection);
      },
      Ahead);
  if (!done->tryAcquire(1, patience())) late_.append(task);
}

/// What is left of the time for waiting in this pass, milliseconds.
int PictureFetcher::patience() {
  if (!std::exchange(isWaiting_, true)) {
    deadline_.setRemainingTime(kFrame);
    QMetaObject::invokeMethod(
        this, [this] { isWaiting_ = false; }, Qt::QueuedConnection);
  }
  return static_cast<int>(deadline_.remainingTime());
}

void PictureFetcher::arrived(const Task& task) {
  asked_.removeOne(task);
  seen_.append(task);
  if (late_.removeOne(task)) Q_EMIT fetched(task.picture);
}

}  // namespace veneerer
