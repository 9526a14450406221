// The lines in which two forms of one record file differ.
#pragma once

#include "comparison/comparison.h"
#include "comparison/recordtext.h"

namespace veneerer {

/// Appends a difference for each line whose bytes aren't the same on both sides, by its number; lines of one
/// side alone too. A line's subject is the one that the second knows, else that of the first.
void addLineDifferences(Differences& differences, const QString& file, const RecordText& first,
                        const RecordText& second);

}  // namespace veneerer
