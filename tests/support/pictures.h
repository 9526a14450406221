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

}  // namespace veneerer::test
