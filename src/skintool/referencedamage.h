// What is wrong or risky in an image reference.
#pragma once

#include "images/picture.h"
#include "platform/skinfolder.h"

namespace veneerer {

/// A sentence for a finding, empty for a reference that is empty or leads to a picture inside the Skin's
/// folder.
QString referenceDamage(const SkinFolder& folder, PictureStore& pictures, const QString& reference);

}  // namespace veneerer
