// All looks.
#pragma once

#include <QString>
#include <span>

#include "looks/look.h"

namespace veneerer::looks {

extern const Look kBlackAndBlue;
extern const Look kCopperLounge;
extern const Look kDaylight;
extern const Look kPaper;
extern const Look kNeonNights;
extern const Look kOldOak;
extern const Look kClearView;
extern const Look kTower;

/// In the order in which they are offered.
std::span<const Look* const> allLooks();

/// The look of that name, without regard to case; null when there is none.
const Look* findLook(const QString& name);

}  // namespace veneerer::looks
