// Looks for what is wrong or risky in a Skin's folder.
#pragma once

#include "images/picturetrials.h"
#include "platform/skinfolder.h"
#include "problems/finding.h"
#include "skin/recordplaces.h"

namespace veneerer {

struct CheckedFiles {
  Findings findings;
  RecordPlaces places;  ///< of what a full load takes from these files
};

enum class KeepPlaces : bool { No, Yes };

/// Everything found in that folder, file by file. Nothing is written. So much work goes into trying to decode
/// its pictures, see PictureTrials; a finding tells how many are beyond it. Places that nobody asks for
/// aren't kept.
CheckedFiles checkSkin(const SkinFolder& folder, const Screen& screen, qint64 decoding = kTrialAllowance,
                       KeepPlaces keep = KeepPlaces::No);

}  // namespace veneerer
