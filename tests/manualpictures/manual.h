// The pictures of the manual.
#pragma once

#include <QString>

namespace veneerer::test {

/// Writes them into a folder. The program folder holds a copy of "Skins" and "images".
void photographManual(const QString& programFolder, const QString& target);

}  // namespace veneerer::test
