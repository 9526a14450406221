// The files of a Skin's folder that the Skin doesn't need.
#pragma once

#include "forms/state.h"
#include "platform/skinfolder.h"
#include "problems/finding.h"

namespace veneerer {

/// Hints of the files, also those in folders within, that are neither shown by the loaded Skin, nor named by
/// one of its references, nor record or cover files. Files whose name begins with a point don't count.
Findings unnamedFiles(const State& state, const SkinFolder& folder);

}  // namespace veneerer
