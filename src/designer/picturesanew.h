// Pictures follow the disk: what shows a file shows what the file holds now.
#pragma once

#include <QSet>

#include "forms/state.h"
#include "platform/skinfolder.h"

namespace veneerer {

/// Every element that shows one of these files, full paths, shows it anew; one without a picture whose
/// reference leads to such a file shows it too, as a load would. No handler runs; a file that can't be read
/// leaves what is shown.
void showAnew(State& state, const SkinFolder& folder, const QSet<QString>& paths);

}  // namespace veneerer
