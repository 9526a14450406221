// What a loader has at hand beside the file's values.
#pragma once

#include <vector>

#include "forms/state.h"
#include "platform/skinfolder.h"

namespace veneerer {

/// What a loader does when a value fails.
enum class OnFailure {
  Fatal,   ///< RecordError
  Resume,  ///< the failing step is passed over and the next one runs
  Report,  ///< the rest of the file is left out, with a message box
};

/// What the steps of a loader need to know.
struct Loading {
  State& state;
  const SkinFolder& folder;
  const Screen& screen;
  /// For each row of the layout the line on which its value stood, 0 where it was passed over. Shorter than
  /// the layout when an optional tail was left out.
  std::vector<int> lines = {};

  /// Loads the file that the reference names into the element; leaves it alone when there is none.
  void show(const QString& reference, Element& element) const;
};

}  // namespace veneerer
