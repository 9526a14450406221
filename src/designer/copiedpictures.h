// Pictures that come into a Skin from elsewhere.
#pragma once

#include <QHash>
#include <QStringList>

#include "files/disk.h"
#include "platform/skinfolder.h"

namespace veneerer {

struct CopiedPictures {
  QHash<QString, QString> references;  ///< of the Skin, "\images\queue.jpg", by the path of the picture
  QStringList names;                   ///< of the files that were made
};

/// Puts a copy of each of these files into the Skin's folder of images under its own name or the first free
/// one like it. Where one of these names already bears the same bytes, no copy is made. All are copied or
/// none: throws WriteRefused when one can't be, and what was made is removed.
CopiedPictures copyPictures(Disk& disk, const SkinFolder& skin, const QStringList& paths);

}  // namespace veneerer
