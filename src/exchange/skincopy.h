// A whole new Skin out of the one in hand.
#pragma once

#include "exchange/longwork.h"
#include "files/disk.h"
#include "files/foldertree.h"
#include "forms/state.h"

namespace veneerer {

/// Makes the folder `to`, which must not be there, whole or not at all: the record files as a save writes
/// them, all other files of the folder `from` byte for byte. Returns what isn't taken along. Throws
/// ExchangeError and GivenUp.
QList<LeftOut> copySkin(State& state, Disk& disk, const QString& from, const QString& to,
                        const GoOn& goOn = {}, const ExchangeLimits& limits = {});

}  // namespace veneerer
