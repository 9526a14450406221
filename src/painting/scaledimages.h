// Pictures in the size in which they are shown, made once.
#pragma once

#include <QCache>
#include <QImage>
#include <QPainter>
#include <limits>

namespace veneerer {

/// The largest image that is kept ready made, in device pixels: a screen of 4096 by 2160.
inline constexpr qint64 kLargestKeptImage = 4096LL * 2160;

/// What an image costs in a cache: its size in KiB, at least 1.
qsizetype kibOf(const QImage& image);

/// True for a size in device pixels that is worth an image of its own.
bool isKeepable(QSize devicePixels);

class ScaledImages {
public:
  ScaledImages();

  /// The image smoothly scaled to exactly that size in device pixels, which must be keepable. One that isn't
  /// ready made, and would take more than the allowance, comes as it is: the painter's own coarse scaling
  /// costs no more than what is seen of it.
  QImage scaled(const QImage& image, QSize devicePixels);

  /// What may be spent on scaling from now on, in pixels to read and to make. Without a word there is no
  /// bound.
  void setAllowance(qint64 pixels);
  /// Takes so much out of the allowance for scaling that is done elsewhere; false when it isn't there.
  bool spend(qint64 pixels);
  /// Whether anything was beyond the allowance since then.
  bool isExceeded() const { return isExceeded_; }

private:
  struct Key {
    qint64 image;
    int width;
    int height;
    bool operator==(const Key&) const = default;
  };
  friend size_t qHash(const Key& key, size_t seed) {
    return qHashMulti(seed, key.image, key.width, key.height);
  }
  QCache<Key, QImage> made_;
  qint64 allowance_ = std::numeric_limits<qint64>::max();
  bool isExceeded_ = false;
};

/// A rectangle of that size in the middle of another.
QRectF centred(QSizeF size, const QRectF& outer);

/// The largest rectangle of those proportions in the middle of another.
QRectF fitted(QSizeF proportions, const QRectF& outer);

/// Draws the image over the target, both in pixels of the painter, but only the part within the clip:
/// however large the target is, the work is that of what can be seen.
void drawWithin(QPainter& painter, const QRectF& target, const QImage& image, const QRectF& clip);

}  // namespace veneerer
