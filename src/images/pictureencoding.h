// Pictures as the bytes of a file, made in memory.
#pragma once

#include <QByteArray>
#include <QImage>

namespace veneerer {

/// The whole file in that format ("BMP", "JPG", "PNG"); the quality is Qt's, 0 to 100, -1 for its default.
/// Empty for an empty picture and where the format can't hold it.
QByteArray encodePicture(const QImage& image, const char* format, int quality = -1);

}  // namespace veneerer
