// What stands beside the fields and lists of "File Controls/Settings".
#pragma once

#include <QString>

#include "elements/family.h"

namespace veneerer {

/// The label of a field or a list, without the colon behind it; empty for a family that has none.
QString fieldLabel(const Family& family);

}  // namespace veneerer
