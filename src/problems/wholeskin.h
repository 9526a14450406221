// What is wrong or risky in the Skin in hand as a whole: what its elements and its folder don't agree in.
#pragma once

#include "forms/state.h"
#include "platform/platform.h"
#include "platform/skinfolder.h"
#include "problems/finding.h"

namespace veneerer {

/// A resolution that isn't the canvas's; a file that a save wrote and no load reads; cover files that a
/// rescale left alone; what a change of Skin left behind from the Skin before. Files are read, none is
/// written.
Findings wholeSkinFindings(State& state, const SkinFolder& folder, const Screen& screen);

/// Whether a save wrote one file and a load reads the other one, and they differ: a finding of the file that
/// is read, with the remedy.
std::optional<Finding> twinFinding(const SkinFolder& folder, const QString& read, const QString& written);

}  // namespace veneerer
