// The film of a minute's work.
#pragma once

#include <QString>

namespace veneerer::test {

/// Writes its frames into a folder as "NNN-T.png": their order, and for how many hundredths of a second each
/// is shown. The program folder holds a copy of "Skins" and "images".
void shootFilm(const QString& programFolder, const QString& target);

}  // namespace veneerer::test
