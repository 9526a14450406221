// Notes what changes while an action runs.
#pragma once

#include <QSet>

#include "history/changes.h"

namespace veneerer {

class Recording {
public:
  explicit Recording(const State& state) : state_(state) {}

  /// Notes what a value is, ahead of the first time that it is replaced. What isn't restored is passed over.
  void note(const Change& change);

  /// What has changed since the last call, in the order in which it was first touched.
  Changes take();

private:
  using Place = std::pair<const Element*, int>;

  const State& state_;
  QSet<Place> seen_;
  Changes noted_;
};

}  // namespace veneerer
