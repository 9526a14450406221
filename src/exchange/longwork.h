// What the makers of copies and archives have in common: they may take long, be given up, and fail.
#pragma once

#include <QString>
#include <functional>
#include <stdexcept>

namespace veneerer {

/// Told of each step, `done` of `total`, with the file that is being worked on; one that takes long is told
/// again and again. False when the work is to be given up. An empty one counts as true.
using GoOn = std::function<bool(int done, int total, const QString& file)>;

/// Called now and then by a part of the work that takes long; throws GivenUp when the work is to be.
using Step = std::function<void()>;

/// The work was given up; nothing is left of it.
class GivenUp : public std::exception {
public:
  const char* what() const noexcept override { return "given up"; }
};

/// Why there is no copy or archive, in one sentence; nothing is left of it.
class ExchangeError : public std::runtime_error {
public:
  explicit ExchangeError(const QString& what) : std::runtime_error(what.toStdString()) {}
};

/// What goes into one copy or archive, and comes out of one, is at most this.
struct ExchangeLimits {
  int files = 10'000;  ///< and as many folders
  qint64 bytes = 1024LL * 1024 * 1024;
};

/// Throws GivenUp when the work is to be.
inline void tellStep(const GoOn& goOn, int done, int total, const QString& file) {
  if (goOn && !goOn(done, total, file)) throw GivenUp();
}

}  // namespace veneerer
