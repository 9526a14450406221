// What is wrong or risky in an image reference.
#pragma once

#include "images/picturetrials.h"
#include "platform/skinfolder.h"

namespace veneerer {

/// Where a reference leads, before anybody tries the picture there.
struct NamedPicture {
  QString path;    ///< the file that is to be tried; empty for none
  QString damage;  ///< a sentence for a finding, of the reference itself; empty for a sound or an empty one
};
NamedPicture namedPicture(const SkinFolder& folder, const QString& reference);

/// A sentence for a finding, empty for a reference that is empty or leads to a picture inside the Skin's
/// folder. A picture that isn't tried counts as one.
QString referenceDamage(const NamedPicture& named, PictureTrials& pictures, const QString& reference);

}  // namespace veneerer
