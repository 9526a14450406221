// A PNG file in turned colours.
#pragma once

#include <QByteArray>
#include <optional>

#include "recolouring/pixelturner.h"

namespace veneerer {

/// image is what the file holds. Of a file with a palette nothing but the palette's colours changes; else the
/// pixels are packed anew, and what the file tells of them ahead of them stays. Nothing where no colour
/// changes, empty where the pixels can't be packed.
std::optional<QByteArray> turnedPng(const QByteArray& png, QImage image, PixelTurner& turner,
                                    const Step& step);

}  // namespace veneerer
