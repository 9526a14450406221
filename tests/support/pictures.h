// Picture files for tests.
#pragma once

#include <QImage>
#include <QString>
#include <algorithm>
#include <cstdlib>

#include "support/files.h"

namespace veneerer::test {

/// Writes a picture of one colour in the format of the name's ending.
inline void writePicture(const QString& path, int width, int height, const QColor& colour) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(colour);
  image.save(path);
}

/// The pixels of a picture's size for which that holds.
template <class Holds>
int countPixels(QSize size, Holds holds) {
  int count = 0;
  for (int y = 0; y < size.height(); ++y)
    for (int x = 0; x < size.width(); ++x) count += holds(x, y) ? 1 : 0;
  return count;
}

/// How far two pictures of one size are apart, of 255: at most, in any pixel and any part of its colour.
inline int largestDifference(const QImage& one, const QImage& other) {
  int largest = 0;
  for (int y = 0; y < one.height(); ++y)
    for (int x = 0; x < one.width(); ++x) {
      const QRgb a = one.pixel(x, y);
      const QRgb b = other.pixel(x, y);
      for (const int d :
           {qRed(a) - qRed(b), qGreen(a) - qGreen(b), qBlue(a) - qBlue(b), qAlpha(a) - qAlpha(b)})
        largest = std::max(largest, std::abs(d));
    }
  return largest;
}

/// A block of pixels of either picture is so far apart in the mean, of 255. Neither another rounding of an
/// edge nor of a colour makes much of it; a missing line does.
inline double blockDifference(const QImage& one, const QImage& other, const QRect& block) {
  int sum = 0;
  for (int y = block.top(); y <= block.bottom(); ++y)
    for (int x = block.left(); x <= block.right(); ++x) {
      const QRgb a = one.pixel(x, y);
      const QRgb b = other.pixel(x, y);
      sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b)) +
             std::abs(qAlpha(a) - qAlpha(b));
    }
  return double(sum) / (3 * block.width() * block.height());
}

/// The largest of all blocks of 8 by 8 pixels; 255 where the sizes differ. Where it is told, `shown` gets the
/// differences, black from this number on.
inline double farthestBlock(const QImage& one, const QImage& other, double black = 255,
                            QImage* shown = nullptr) {
  constexpr int kSide = 8;
  if (one == other) return 0;
  if (one.size() != other.size()) return 255;
  if (shown) *shown = QImage(one.size(), QImage::Format_Grayscale8);
  double farthest = 0;
  for (int y = 0; y < one.height(); y += kSide)
    for (int x = 0; x < one.width(); x += kSide) {
      const QRect block = QRect(x, y, kSide, kSide) & one.rect();
      const double far = blockDifference(one, other, block);
      farthest = std::max(farthest, far);
      for (int line = block.top(); shown && line <= block.bottom(); ++line)
        std::fill_n(shown->scanLine(line) + x, block.width(),
                    uchar(255 - std::min(255.0, 255 * far / black)));
    }
  return farthest;
}

}  // namespace veneerer::test
