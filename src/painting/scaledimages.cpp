#include "painting/scaledimages.h"

#include "images/picturedecoding.h"

namespace veneerer {

namespace {

constexpr qsizetype kCachedKiB = 40 * 1024;

}  // namespace

qsizetype kibOf(const QImage& image) {
  return 1 + image.sizeInBytes() / 1024;
}

bool isKeepable(QSize size) {
  return !size.isEmpty() && pixelsOf(size) <= kLargestKeptImage;
}

ScaledImages::ScaledImages() : made_(kCachedKiB) {}

QImage ScaledImages::scaled(const QImage& image, QSize size) {
  if (image.size() == size) return image;
  const Key key{image.cacheKey(), size.width(), size.height()};
  if (const QImage* known = made_.object(key)) return *known;
  if (!spend(pixelsOf(image.size()) + pixelsOf(size))) return image;
  const QImage made = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  made_.insert(key, new QImage(made), kibOf(made));
  return made;
}

void ScaledImages::setAllowance(qint64 pixels) {
  allowance_ = pixels;
  isExceeded_ = false;
}

bool ScaledImages::spend(qint64 pixels) {
  isExceeded_ |= pixels > allowance_;
  if (pixels > allowance_) return false;
  allowance_ -= pixels;
  return true;
}

QRectF centred(QSizeF size, const QRectF& outer) {
  return QRectF(outer.x() + (outer.width() - size.width()) / 2,
                outer.y() + (outer.height() - size.height()) / 2, size.width(), size.height());
}

QRectF fitted(QSizeF proportions, const QRectF& outer) {
  return centred(proportions.scaled(outer.size(), Qt::KeepAspectRatio), outer);
}

void drawWithin(QPainter& painter, const QRectF& target, const QImage& image, const QRectF& clip) {
  const QRectF shown = target & clip;
  if (shown.isEmpty() || image.isNull()) return;
  const double across = image.width() / target.width();
  const double down = image.height() / target.height();
  const QRectF source((shown.x() - target.x()) * across, (shown.y() - target.y()) * down,
                      shown.width() * across, shown.height() * down);
  painter.drawImage(shown, image, source);
}

}  // namespace veneerer
