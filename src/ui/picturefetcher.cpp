#include "ui/picturefetcher.h"

#include <qtconcurrenttask.h>

#include <QSemaphore>
#include <memory>
#include <utility>

namespace veneerer {

namespace {

constexpr int kFrame = 12;  // milliseconds; the rest of a frame is left for painting

enum Priority { Behind = 0, Ahead = 1 };

}  // namespace

PictureFetcher::PictureFetcher(Operator& hands) : state_(hands.state()) {
  pool_.setMaxThreadCount(1);
  state_.pictures.fetchWith([this](const Picture& picture) { fetch(picture); });
  watching_ = state_.board.watch([this](const Change&) { seen_.clear(); });
  connect(&hands, &Operator::acted, this, [this] { seen_.clear(); });
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
void PictureFetcher::fetch(const Picture& picture) {
  if (asked_.contains(picture) || seen_.contains(picture)) return;
  asked_.append(picture);
  const auto done = std::make_shared<QSemaphore>();
  pool_.start(
      [this, picture, done] {
        picture.image();
        done->release();
        QMetaObject::invokeMethod(
            this, [this, picture] { arrived(picture); }, Qt::QueuedConnection);
      },
      Ahead);
  if (!done->tryAcquire(1, patience())) late_.insert(picture.id());
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

void PictureFetcher::arrived(const Picture& picture) {
  asked_.removeOne(picture);
  seen_.append(picture);
  if (late_.remove(picture.id())) Q_EMIT fetched(picture);
}

}  // namespace veneerer
