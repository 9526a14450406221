// The lines of a cover file, for a given number of covers in use.
#pragma once

#include "records/layout.h"

namespace veneerer {

/// The file's lines, whose number depends on the index of the last cover. Covers beyond 27 don't exist and
/// have no lines.
Layout coverFile(State& state, const QString& name, int lastCover);

}  // namespace veneerer
