// The version of the program, said once: in the build's project line.
#pragma once

#include <QString>

namespace veneerer {

/// "3.0"
QString programVersion();

}  // namespace veneerer
