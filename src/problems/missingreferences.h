// The image references that a load would find no file for.
#pragma once

#include "forms/state.h"
#include "platform/skinfolder.h"

namespace veneerer {

/// The slots whose reference isn't empty and leads nowhere.
std::vector<const Element*> missingReferences(const State& state, const SkinFolder& folder);

}  // namespace veneerer
