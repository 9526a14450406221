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

/// Every element that shows a file of the one Skin shows the file of that name of its copy, where it is
/// there. No handler runs.
void showOfCopy(State& state, const SkinFolder& from, const SkinFolder& to);

}  // namespace veneerer
