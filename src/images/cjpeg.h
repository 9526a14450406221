// A baseline JPEG encoder.
#pragma once

#include <QByteArray>
#include <QString>
#include <array>

#include "images/cimage.h"

namespace veneerer {

/// A file's bytes, or why there are none.
struct JpegResult {
  QByteArray bytes;
  QString error;
  bool isOk() const { return error.isEmpty(); }
};

class cJpeg {
public:
  int quality() const { return quality_; }
  /// 1 to 100; any other is refused.
  bool setQuality(int quality);

  /// How often the lightness and the two colour differences are sampled, across and down, relative to each
  /// other: 2, 2, 1, 1, 1, 1 stores each colour difference once for four pixels. Refused unless all are 1 to
  /// 4 and a block of them holds at most 10 units, as the format asks.
  bool SetSamplingFrequencies(int h1, int v1, int h2, int v2, int h3, int v3);

  /// Takes the picture to encode.
  void SampleImage(const cImage& image) { image_ = image; }

  /// The whole file, made in memory. Fails for an empty picture, one of more than 65500 pixels in a
  /// direction, and sampling frequencies that aren't multiples of each other.
  JpegResult encode() const;

private:
  int quality_ = 90;
  std::array<int, 6> frequencies_ = {2, 2, 1, 1, 1, 1};
  cImage image_;
};

}  // namespace veneerer
