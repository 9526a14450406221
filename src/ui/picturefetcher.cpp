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

PictureFetcher::PictureFetcher(Operator& hands)
    : state_(hands.state()), inSight_(hands, [this] { seen_.clear(); }) {
  pool_.setMaxThreadCount(1);
  begin();
  watching_ = state_.board.watch([this](const Change&) { seen_.clear(); });
  connect(&hands, &Operator::acted, this, [this] { seen_.clear(); });
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
