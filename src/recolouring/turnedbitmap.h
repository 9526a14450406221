// A bitmap file in turned colours.
#pragma once

#include <QByteArray>
#include <optional>

#include "recolouring/pixelturner.h"

namespace veneerer {

/// The same file but for the colours of its palette or its pixels. Nothing where no colour changes; empty
/// where its head is of no known form, or its pixels are packed in a way that has no palette.
std::optional<QByteArray> turnedBitmap(const QByteArray& bitmap, PixelTurner& turner, const Step& step);

}  // namespace veneerer
