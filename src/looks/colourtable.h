// Reduces pictures to 256 colours of their own, for GIF files and small BMP files.
#pragma once

#include <QImage>

namespace veneerer::looks {

/// The picture in the format Indexed8, with the colour table that fits it best: boxes of its colours are cut
/// at their longest side until there are 256. Alpha is dropped.
QImage indexed(const QImage& image);

}  // namespace veneerer::looks
