#include "painting/customoutline.h"

#include <cstdlib>
#include <vector>

#include "elements/button.h"
#include "painting/scaledimages.h"

namespace veneerer {

namespace {

constexpr int kLongestSide = 1024;
constexpr qsizetype kCachedKiB = 12 * 1024;
// A JPEG doesn't keep its background in one exact colour; the sum of the differences of the three parts.
constexpr int kTolerance = 60;
// Along the outline a picture with soft edges has a pale fringe, one pixel wide, which may differ this much.
constexpr int kFringeTolerance = 240;

int difference(QRgb a, QRgb b) {
  return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
}

bool hasTransparentPixels(const QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = 0; x < image.width(); ++x)
      if (qAlpha(row[x]) == 0) return true;
  }
  return false;
}

// Clears the background from the edge inwards. A pixel is cleared when it is noted, so that each is noted
// once.
class Flood {
public:
  explicit Flood(QImage& image)
      : width_(image.width()),
        height_(image.height()),
        pixels_(reinterpret_cast<QRgb*>(image.bits())),
        background_(pixels_[0]) {}

  /// False when nothing but background was there.
  bool run() {
    for (int x = 0; x < width_; ++x) {
      reach(x, 0);
      reach(x, height_ - 1);
    }
    for (int y = 0; y < height_; ++y) {
      reach(0, y);
      reach(width_ - 1, y);
    }
    // The list grows while it is walked; what the last pixels reach is the fringe.
    for (std::size_t next = 0; next < cleared_.size(); ++next) spread(cleared_[next]);
    const std::size_t background = cleared_.size();
    tolerance_ = kFringeTolerance;
    for (std::size_t next = 0; next < background; ++next) spread(cleared_[next]);
    return cleared_.size() < static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_);
  }

private:
  void spread(int at) {
    const int x = at % width_;
    const int y = at / width_;
    reach(x - 1, y);
    reach(x + 1, y);
    reach(x, y - 1);
    reach(x, y + 1);
  }

  void reach(int x, int y) {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) return;
    QRgb& pixel = pixels_[y * width_ + x];
    if (qAlpha(pixel) == 0 || difference(pixel, background_) > tolerance_) return;
    pixel = 0;
    cleared_.push_back(y * width_ + x);
  }

  int width_;
  int height_;
  QRgb* pixels_;  // 32 bits each, rows without gaps
  QRgb background_;
  int tolerance_ = kTolerance;
  std::vector<int> cleared_;
};

}  // namespace

QImage cutOut(const QImage& picture) {
  if (picture.isNull()) return {};
  QImage image = picture;
  if (image.width() > kLongestSide || image.height() > kLongestSide)
    image = image.scaled(kLongestSide, kLongestSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  image = std::move(image).convertToFormat(QImage::Format_ARGB32_Premultiplied);
  if (hasTransparentPixels(image)) return image;
  QImage cut = image;
  return Flood(cut).run() ? cut : image;
}

QRectF cutOutRect(int shape, QSize picture, QSizeF face, double scale) {
  const QRectF all(QPointF(), face);
  if (shape != Button::kLastShape) return all;
  const QSizeF own = QSizeF(picture) * scale;
  const bool fits = own.width() <= face.width() && own.height() <= face.height();
  return fits ? centred(own, all) : fitted(own, all);
}

CutOuts::CutOuts() : made_(kCachedKiB) {}

QImage CutOuts::of(const QImage& picture) {
  if (const QImage* known = made_.object(picture.cacheKey())) return *known;
  const QImage made = cutOut(picture);
  made_.insert(picture.cacheKey(), new QImage(made), kibOf(made));
  return made;
}

}  // namespace veneerer
