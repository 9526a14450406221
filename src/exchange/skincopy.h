// A whole new Skin out of the one in hand.
#pragma once

#include <optional>

#include "elements/dress.h"
#include "exchange/longwork.h"
#include "files/disk.h"
#include "files/foldertree.h"
#include "forms/state.h"

namespace veneerer {

/// What a copy has otherwise than the Skin in hand.
struct CopyChanges {
  Dress dress = {};  ///< the colours of its record files
  /// The bytes that it has in the place of those of a file that is no record file; nothing for these.
  std::function<std::optional<QByteArray>(const TreeFile& file, const Step& step)> remade = {};
};

/// Makes the folder `to`, which must not be there, whole or not at all: the record files as a save writes
/// them, all other files of the folder `from` byte for byte, but for the changes. Returns what isn't taken
/// along. Throws ExchangeError and GivenUp.
QList<LeftOut> copySkin(State& state, Disk& disk, const QString& from, const QString& to,
                        const GoOn& goOn = {}, const ExchangeLimits& limits = {},
                        const CopyChanges& changes = {});

}  // namespace veneerer
