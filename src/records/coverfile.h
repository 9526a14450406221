// The lines of a cover file, for a given number of covers in use, and the name that one may have.
#pragma once

#include "records/layout.h"

namespace veneerer {

/// The index of the last row of each family that a cover file holds: the number that it tells, no less than
/// -1. One that tells of more covers than there are is asked for its rows, at most 1000 of them. -1 when its
/// second value is no number.
int lastCoverOf(const QByteArray& bytes);

/// The file's lines, whose number depends on the index of the last cover. The lines of covers beyond
/// kHighestCover are read and dropped.
Layout coverFile(State& state, const QString& name, int last);

/// The name under which a cover file is saved when the operator types this one: without an extension it gets
/// ".cov". Empty when that is no plain, visible file name that ends in ".cov".
QString coverFileName(const QString& typed);

}  // namespace veneerer
