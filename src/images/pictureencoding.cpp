#include "images/pictureencoding.h"

#include <QBuffer>

namespace veneerer {

QByteArray encodePicture(const QImage& image, const char* format, int quality) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  return image.save(&buffer, format, quality) ? bytes : QByteArray();
}

}  // namespace veneerer
