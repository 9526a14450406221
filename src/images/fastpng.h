// PNG files of what was painted: as the toolkit makes them, in a third of the time.
#pragma once

#include <QByteArray>
#include <QImage>

namespace veneerer {

/// A PNG file at the fastest compression that still shrinks: the same bytes as those of encodePicture() with
/// kFastPng, as libpng makes them. Each line takes the filter whose result is the smallest.
QByteArray fastPng(const QImage& image);

/// Of 0 to 100 in Qt's terms.
inline constexpr int kFastPng = 80;

}  // namespace veneerer
