// Does what a remedy says.
#pragma once

#include "forms/state.h"
#include "platform/platform.h"
#include "platform/skinfolder.h"
#include "problems/remedy.h"

namespace veneerer {

/// Writes the remedy's file, then changes what it names; a picture never takes the place of a file that is
/// there. Throws WriteRefused, and RecordError where the file can't be read or written: nothing has changed
/// then. An element that isn't there is passed over.
void applyRemedy(State& state, Disk& disk, const SkinFolder& folder, const Remedy& remedy);

}  // namespace veneerer
