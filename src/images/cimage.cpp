#include "images/cimage.h"

#include <QPainter>

namespace veneerer {

bool cImage::CopyPicture(const QImage& picture) {
  pixels_ = {};
  if (picture.isNull()) return false;
  if (!picture.hasAlphaChannel()) {
    pixels_ = picture.convertToFormat(QImage::Format_RGB32);
  } else {
    pixels_ = QImage(picture.size(), QImage::Format_RGB32);
    pixels_.fill(Qt::black);
    QPainter(&pixels_).drawImage(QRect(QPoint(), picture.size()), picture, QRect(QPoint(), picture.size()));
  }
  return !pixels_.isNull();
}

cImage cImage::stretched(QSize size) const {
  cImage other;
  const bool isPossible =
      !isEmpty() && !size.isEmpty() && static_cast<qint64>(size.width()) * size.height() <= kMostPixels;
  if (isPossible) other.pixels_ = pixels_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  return other;
}

}  // namespace veneerer
