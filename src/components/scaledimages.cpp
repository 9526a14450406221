#include "components/scaledimages.h"

namespace veneerer {

namespace {

constexpr qsizetype kCachedKiB = 40 * 1024;

qsizetype kibOf(const QImage& image) {
  return 1 + image.sizeInBytes() / 1024;
}

}  // namespace

bool isKeepable(QSize size) {
  return !size.isEmpty() && static_cast<qint64>(size.width()) * size.height() <= kLargestKeptImage;
}

ScaledImages::ScaledImages() : made_(kCachedKiB) {}

QImage ScaledImages::scaled(const QImage& image, QSize size) {
  if (image.size() == size) return image;
  const Key key{image.cacheKey(), size.width(), size.height()};
  if (const QImage* known = made_.object(key)) return *known;
  const QImage made = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  made_.insert(key, new QImage(made), kibOf(made));
  return made;
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
