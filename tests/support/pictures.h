// Picture files for tests.
#pragma once

#include <QFile>
#include <QImage>
#include <QString>

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

}  // namespace veneerer::test
