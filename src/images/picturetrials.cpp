#include "images/picturetrials.h"

#include <algorithm>
#include <new>

namespace veneerer {

namespace {

// Pixels of a picture above which no other one is begun beside it: a decoder may need many bytes for each.
constexpr qint64 kMostBeside = 4LL * 1024 * 1024;

}  // namespace

void PictureTrials::expect(const QString& path) {
  queue(path);
  if (!worker_.joinable()) worker_ = std::jthread([this](const std::stop_token& end) { tryExpected(end); });
}

PictureTrial PictureTrials::of(const QString& path) {
  queue(path);
  while (tryNext())
    ;
  std::unique_lock lock(mutex_);
  news_.wait(lock, [&] { return known_[path].has_value(); });
  return *known_[path];
}

void PictureTrials::forget(const QString& path) {
  const std::scoped_lock lock(mutex_);
  known_.remove(path);
}

int PictureTrials::untried() const {
  const std::scoped_lock lock(mutex_);
  return static_cast<int>(std::ranges::count(known_, PictureTrial::Untried));
}

void PictureTrials::queue(const QString& path) {
  const std::scoped_lock lock(mutex_);
  if (known_.contains(path)) return;
  known_.insert(path, std::nullopt);
  queue_.push_back(path);
  news_.notify_all();
}

/// Tries the next one of the queue; false when there is none.
bool PictureTrials::tryNext() {
  std::unique_lock turn(turn_);
  std::unique_lock lock(mutex_);
  if (queue_.empty()) return false;
  const QString path = queue_.front();
  queue_.pop_front();
  lock.unlock();
  const PictureTrial result = tried(path, turn);
  lock.lock();
  known_[path] = result;
  news_.notify_all();
  return true;
}

PictureTrial PictureTrials::tried(const QString& path, std::unique_lock<std::mutex>& turn) {
  if (left_ <= 0) return PictureTrial::Untried;
  try {
    return tryPicture(path, [&](const PictureCost& cost) {
      left_ -= cost.work;
      const bool isAfforded = left_ >= 0;
      if (pixelsOf(cost.size) <= kMostBeside) turn.unlock();
      return isAfforded;
    });
  } catch (const std::bad_alloc&) {
    return PictureTrial::Untried;
  }
}

void PictureTrials::tryExpected(const std::stop_token& end) {
  const auto waits = [this, &end] {
    std::unique_lock lock(mutex_);
    return news_.wait(lock, end, [this] { return !queue_.empty(); });
  };
  while (waits()) tryNext();
}

}  // namespace veneerer
