// A GIF file in turned colours.
#pragma once

#include <QByteArray>
#include <optional>

#include "recolouring/pixelturner.h"

namespace veneerer {

/// The same file but for the colours in its tables: every pixel, frame, time and disposal stays, to the byte.
/// Nothing where no colour changes. Of a damaged file the tables ahead of the damage are turned.
std::optional<QByteArray> turnedGif(const QByteArray& gif, PixelTurner& turner);

}  // namespace veneerer
