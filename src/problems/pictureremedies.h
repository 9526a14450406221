// What could be done about an image reference that a load finds no picture for.
#pragma once

#include "forms/imagenames.h"
#include "images/picturetrials.h"
#include "problems/remedy.h"
#include "problems/skinpictures.h"

namespace veneerer {

/// shown is the full path of the picture that the slot's elements show by that reference's bare name: it was
/// chosen or grabbed, and the reference doesn't lead there; empty for none.
Remedies pictureRemedies(const SkinFolder& folder, SkinPictures& pictures, PictureTrials& trials,
                         const ImageSlot& slot, const QString& shown);

}  // namespace veneerer
