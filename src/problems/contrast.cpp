#include "problems/contrast.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace veneerer {

namespace {

// The standard's formulas: https://www.w3.org/TR/WCAG21/#dfn-relative-luminance.
double linear(double part) {
  return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

std::array<double, 256> linearParts() {
  std::array<double, 256> parts{};
  for (int i = 0; i < 256; ++i) parts[static_cast<std::size_t>(i)] = linear(i / 255.0);
  return parts;
}

}  // namespace

double luminanceOf(QRgb colour) {
  static const std::array<double, 256> parts = linearParts();
  const auto part = [](int value) { return parts[static_cast<std::size_t>(value)]; };
  return 0.2126 * part(qRed(colour)) + 0.7152 * part(qGreen(colour)) + 0.0722 * part(qBlue(colour));
}

double meanLuminance(const QImage& image) {
  if (image.isNull()) return 0;
  const QImage pixels = image.convertToFormat(QImage::Format_RGB32);
  double sum = 0;
  for (int y = 0; y < pixels.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
    for (int x = 0; x < pixels.width(); ++x) sum += luminanceOf(line[x]);
  }
  return sum / pixels.width() / pixels.height();
}

double contrastOf(double one, double other) {
  return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

QString contrastText(double contrast) {
  return QString::number(std::floor(contrast * 10) / 10, 'f', 1);
}

double leastContrast(float points, bool isBold) {
  const bool isLarge = points >= 18 || (isBold && points >= 14);
  return isLarge ? 3 : kLeastContrast;
}

}  // namespace veneerer
