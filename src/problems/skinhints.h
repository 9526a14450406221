// All hints of a whole Skin at once.
#pragma once

#include "platform/skinfolder.h"
#include "problems/finding.h"
#include "problems/hints.h"
#include "skin/recordplaces.h"

namespace veneerer {

/// The hints of every element of the canvas, in the order of its families, and of the files that nothing
/// names. touch is the least side of a button, pixels.
Findings skinHints(const State& state, const SkinFolder& folder, const Screen& screen,
                   const RecordPlaces& places, int touch = kTouchPixels);

}  // namespace veneerer
