// The lines of a cover file, for a given number of covers in use.
#pragma once

#include "records/layout.h"

namespace veneerer {

/// The index of the last cover that a cover file speaks of, -1 to 27; -1 when its second value is no number.
int lastCoverOf(const QByteArray& bytes);

/// The file's lines, whose number depends on the index of the last cover. Covers beyond 27 don't exist and
/// have no lines.
Layout coverFile(State& state, const QString& name, int lastCover);

}  // namespace veneerer
