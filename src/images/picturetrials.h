// Whether picture files can be decoded, for a check that shows none of them.
#pragma once

#include <QHash>
#include <QString>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>

#include "images/picturedecoding.h"

namespace veneerer {

/// The work that all trials together may do, in pixels walked and bytes read: more than the pictures of a
/// Skin for the largest screens need, and some seconds for the slowest that a stranger can make.
inline constexpr qint64 kTrialAllowance = 400LL * 1024 * 1024;

/// Decodes each file once and keeps nothing of its pixels. To be used from one thread.
class PictureTrials {
public:
  /// The work in the unit of PictureCost.
  explicit PictureTrials(qint64 allowance) : left_(allowance) {}

  /// The file will be asked for: another thread tries it meanwhile. The allowance goes to those that were
  /// expected or asked for first.
  void expect(const QString& path);

  /// Of an expected one, this thread lends a hand with those before it.
  PictureTrial of(const QString& path);

  /// The file was written anew: the next question tries it again.
  void forget(const QString& path);

  /// How many of the files that were asked for weren't tried.
  int untried() const;

private:
  void queue(const QString& path);
  bool tryNext();
  PictureTrial tried(const QString& path, std::unique_lock<std::mutex>& turn);
  void tryExpected(const std::stop_token& end);

  QHash<QString, std::optional<PictureTrial>> known_;  ///< nothing yet of one in the queue
  std::deque<QString> queue_;
  mutable std::mutex mutex_;  ///< of the two above
  std::condition_variable_any news_;
  qint64 left_;
  std::mutex turn_;  ///< to take the next one, and from the allowance
  std::jthread worker_;
};

}  // namespace veneerer
