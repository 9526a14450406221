// A picture buffer: what the rescale resamples and the JPEG encoder reads.
#pragma once

#include <QColor>
#include <QImage>

namespace veneerer {

class cImage {
public:
  /// The most pixels of a buffer: as much as a picture file may hold.
  static constexpr qint64 kMostPixels = 48LL * 1024 * 1024;

  /// Takes a copy; what is transparent turns black. False, and an empty buffer, for no picture.
  bool CopyPicture(const QImage& picture);

  bool isEmpty() const { return pixels_.isNull(); }
  int width() const { return pixels_.width(); }
  int height() const { return pixels_.height(); }

  /// The colour of a pixel, which must be inside.
  QRgb sample(int x, int y) const { return pixels_.pixel(x, y); }

  /// A row of width() pixels, 0xffRRGGBB each.
  const QRgb* row(int y) const { return reinterpret_cast<const QRgb*>(pixels_.constScanLine(y)); }

  const QImage& image() const { return pixels_; }

  /// The whole picture in another size. A smaller pixel is the mean of all that it stands for. Empty for a
  /// size without area or of more than kMostPixels.
  cImage stretched(QSize size) const;

private:
  QImage pixels_;  // Format_RGB32
};

}  // namespace veneerer
