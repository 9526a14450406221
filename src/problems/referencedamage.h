// What is wrong or risky in an image reference.
#pragma once

#include "images/picturetrials.h"
#include "platform/skinfolder.h"

namespace veneerer {

/// A sentence for a finding, empty for a reference that is empty or leads to a picture inside the Skin's
/// folder. A picture that isn't tried counts as one.
QString referenceDamage(const SkinFolder& folder, PictureTrials& pictures, const QString& reference);

}  // namespace veneerer
