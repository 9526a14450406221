// What is risky in one value of a record file, as it stands there.
#pragma once

#include "problems/rawvalues.h"

namespace veneerer {

/// A sentence for a finding: what a load changes in the value, or what a save would make of it. Empty when
/// it comes back as it stands.
QString rowDamage(const RawValue& value);

}  // namespace veneerer
