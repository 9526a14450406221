// Looks for what is wrong or risky in a Skin's folder.
#pragma once

#include "platform/skinfolder.h"
#include "skintool/finding.h"

namespace veneerer {

/// Everything found in that folder, file by file. Nothing is written.
Findings checkSkin(const SkinFolder& folder, const Screen& screen);

}  // namespace veneerer
