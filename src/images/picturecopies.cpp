#include "images/picturecopies.h"

#include <cmath>

#include "images/picturedecoding.h"

namespace veneerer {

QSize reducedSize(QSize picture) {
  const qint64 pixels = pixelsOf(picture);
  if (pixels <= kMostCopiedPixels) return picture;
  const double factor = std::sqrt(double(kMostCopiedPixels) / double(pixels));
  return (QSizeF(picture) * factor).toSize().expandedTo(QSize(1, 1));
}

PictureCopy copyFor(const PictureNeed& need, QSize picture) {
  if (pixelsOf(picture) <= kMostCopiedPixels) return PictureCopy::Reduced;
  if (need.use == PictureNeed::Use::Scaled)
    return covers(reducedSize(picture), need.size) ? PictureCopy::Reduced : PictureCopy::Whole;
  const bool isSmall = pixelsOf(need.size.boundedTo(picture)) <= kMostCopiedPixels;
  return isSmall ? PictureCopy::Corner : PictureCopy::Whole;
}

QImage copyOf(const QImage& picture, const PictureNeed& need) {
  const QSize size = picture.size();
  switch (copyFor(need, size)) {
    case PictureCopy::Corner:
      return picture.copy(QRect(QPoint(), need.size.boundedTo(size)));
    case PictureCopy::Reduced:
      if (reducedSize(size) == size) return picture;
      return picture.scaled(reducedSize(size), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    default:
      return picture;
  }
}

bool covers(QSize size, QSize other) {
  return size.width() >= other.width() && size.height() >= other.height();
}

}  // namespace veneerer
