// What of a Skin's folder goes into a copy or an archive.
#pragma once

#include "exchange/longwork.h"
#include "files/foldertree.h"

namespace veneerer {

/// The folder's files, but for what a killed program left over. Throws ExchangeError when there is more than
/// the limits allow.
FolderTree contentsOf(const QString& folder, const ExchangeLimits& limits);

}  // namespace veneerer
