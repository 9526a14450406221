// A Skin out of an archive that may come from anybody.
#pragma once

#include "exchange/longwork.h"
#include "files/disk.h"

namespace veneerer {

/// Unpacks the one Skin of a zip archive as a folder in the root of Skins, which is made when it isn't there.
/// The whole archive is looked at ahead, and its bytes are counted as they come, whatever it says of them:
/// nothing is written of one that isn't the files of one new Skin alone. Returns the Skin's name. Throws
/// ExchangeError and GivenUp.
QString unpackSkin(Disk& disk, const QString& archive, const QString& skinsRoot, const GoOn& goOn = {},
                   const ExchangeLimits& limits = {});

}  // namespace veneerer
