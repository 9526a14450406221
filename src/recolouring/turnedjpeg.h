// A JPEG file in turned colours.
#pragma once

#include <QByteArray>
#include <optional>

#include "recolouring/pixelturner.h"

namespace veneerer {

/// image is what the file holds; it is encoded anew in the file's quality and sampling. Nothing where no
/// colour changes, empty where it can't be encoded.
std::optional<QByteArray> turnedJpeg(const QByteArray& jpeg, QImage image, PixelTurner& turner,
                                     const Step& step);

}  // namespace veneerer
