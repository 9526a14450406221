// Writes a whole Skin: every record file, in one step.
#pragma once

#include <vector>

#include "elements/dress.h"
#include "files/replacefiles.h"
#include "forms/state.h"
#include "platform/platform.h"
#include "platform/skinfolder.h"
#include "records/writefiles.h"

namespace veneerer {

/// Every record file as a save writes it, in the colours of the dress.
std::vector<NewFile> composedRecords(State& state, const Dress& dress = {});

/// Composes every record file, from menu.ini to the twins and locked_button.ini, and replaces all of them in
/// that folder. No question is asked and no copy is kept. Throws WriteRefused when one of them can't be
/// written, and RecordError when writing fails all the same.
WrittenFiles saveRecords(State& state, Disk& disk, const SkinFolder& folder);

/// Writes locked_button.ini alone, which a note tells. What stands against it is told in a box. Throws
/// RecordError when writing fails all the same.
void saveLockedButtons(State& state, const Platform& platform, const SkinFolder& folder);

}  // namespace veneerer
