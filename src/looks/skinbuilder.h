// Makes a Skin's folder: composes the canvas by its look, draws its pictures, and saves all with the
// program's own savers.
#pragma once

#include <QString>

#include "files/disk.h"
#include "looks/look.h"

namespace veneerer::looks {

/// Writes the Skin into folder/Skins, over what is there. Throws std::runtime_error when a file can't be
/// written.
void buildSkin(const QString& folder, const Look& look, Disk& disk);

/// Writes the pictures that the program takes when a Skin has none of its own into folder/images.
void buildProgramImages(const QString& folder, const Look& look, Disk& disk);

}  // namespace veneerer::looks
