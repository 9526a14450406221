// What the program is called, and its version as the build's project line has it.
#pragma once

#include <QString>

namespace veneerer {

/// "Veneerer"
QString programTitle();

/// "3.0"
QString programVersion();

}  // namespace veneerer
