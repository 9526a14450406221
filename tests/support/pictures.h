// Picture files for tests.
#pragma once

#include <QFile>
#include <QImage>
#include <QString>
#include <algorithm>
#include <cstdlib>

namespace veneerer::test {

/// Writes a picture of one colour in the format of the name's ending.
inline void writePicture(const QString& path, int width, int height, const QColor& colour) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(colour);
  image.save(path);
}

inline void writeBytes(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (file.open(QIODevice::WriteOnly)) file.write(bytes);
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
