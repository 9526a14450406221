// Writes a whole Skin: every record file, in the fixed order of saving.
#pragma once

#include "forms/state.h"
#include "platform/skinfolder.h"

namespace veneerer {

/// Composes and writes every record file into that folder, from menu.ini to the twins and locked_button.ini.
/// No question is asked and no copy is kept. Throws RecordError at the first file that can't be written; the
/// files written before it remain.
void saveRecords(State& state, const SkinFolder& folder);

/// Writes locked_button.ini alone.
void saveLockedButtons(State& state, const SkinFolder& folder);

}  // namespace veneerer
