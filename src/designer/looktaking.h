// Takes the look of a screen over from another Skin.
#pragma once

#include <optional>

#include "designer/copiedpictures.h"
#include "designer/takenlook.h"
#include "platform/platform.h"

namespace veneerer {

/// A look with its pictures at hand.
struct LookAtHand {
  TakenLook look;
  CopiedPictures copied;
};

/// Loads that Skin of the root, finds what the shown screen has to get of it and copies the pictures. Nothing
/// where there is nothing to do, which a note tells, or something stands against it, which a box tells; no
/// file is left of it then.
std::optional<LookAtHand> fetchLook(State& state, const Platform& platform, const QString& skinName,
                                    LookPart part);

/// Sets what was found; the note names the pictures that were copied.
void giveLook(State& state, const SkinFolder& skin, const QString& skinName, const LookAtHand& found);

}  // namespace veneerer
