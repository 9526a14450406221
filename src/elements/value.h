// A property's value when it travels without its element's kind: in a notice, from a record file, to a dump.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <variant>

#include "images/picture.h"

namespace veneerer {

/// Whole numbers are signed 32-bit, fractions Singles.
using Value = std::variant<bool, std::int32_t, float, QString, QStringList, Picture>;

}  // namespace veneerer
