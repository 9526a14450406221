// Names of what is being written: they can't be foreseen, and tell whose they are once nobody writes any
// more.
#pragma once

#include <QString>

#include "files/disk.h"

namespace veneerer {

/// A new name for what is to bear that name once it is whole: hidden, told by this process, and not to be
/// foreseen.
QString temporaryName(const QString& name);

/// True for the name of a file or folder that a killed program may have left over. Whoever lists a Skin's
/// folder passes it over; the next one who writes there removes it.
bool isLeftOver(const QString& name);

/// The same, and the process that gave the name is no more: nobody else is writing it right now.
bool isAbandoned(const QString& name);

/// Removes the files in that folder which killed programs left over. No link is followed; what can't be
/// removed stays.
void removeAbandonedFiles(Disk& disk, const QString& folder);

}  // namespace veneerer
