// How well a text stands out from its ground.
#pragma once

#include <QImage>
#include <QString>

namespace veneerer {

/// The relative luminance of a colour, 0 for black to 1 for white.
double luminanceOf(QRgb colour);

/// The mean luminance of all pixels; 0 for a null image.
double meanLuminance(const QImage& image);

/// The contrast of two luminances, 1 for none to 21 for black on white.
double contrastOf(double one, double other);

/// A contrast to be read, with one digit behind the point; never more than it is.
QString contrastText(double contrast);

/// The least contrast that any text can be read with.
inline constexpr double kLeastContrast = 4.5;

/// The least contrast that a text of that many points can be read with: large letters need less.
double leastContrast(float points, bool isBold);

}  // namespace veneerer
