// What a change of Skin left behind: it resets no element, and it reads no cover file and not every record
// file.
#pragma once

#include "forms/state.h"
#include "platform/skinfolder.h"
#include "problems/finding.h"

namespace veneerer {

/// Warnings of what still is as in the Skin before; none as long as there was only one Skin, see
/// Globals::SkinBefore.
Findings leftBehindFindings(State& state, const SkinFolder& folder);

}  // namespace veneerer
