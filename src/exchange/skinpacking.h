// One Skin as one archive.
#pragma once

#include "exchange/longwork.h"
#include "files/disk.h"
#include "files/foldertree.h"

namespace veneerer {

/// Packs the Skin's folder as it lies on the disk, as the only entry at the top, into that zip archive, which
/// is replaced as a whole. The entries are in the order of their names. Returns what isn't taken along.
/// Throws ExchangeError, for a name too that no archive can hold, and GivenUp.
QList<LeftOut> packSkin(Disk& disk, const QString& skin, const QString& archive, const GoOn& goOn = {},
                        const ExchangeLimits& limits = {});

}  // namespace veneerer
