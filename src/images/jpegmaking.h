// How a JPEG file was made: what an encoder must be told to make another one like it.
#pragma once

#include <QByteArray>
#include <array>

namespace veneerer {

struct JpegMaking {
  int quality = 90;  ///< 1 to 100
  /// As for cJpeg::SetSamplingFrequencies; all 1 for a file of one component.
  std::array<int, 6> sampling = {2, 2, 1, 1, 1, 1};
};

/// Reads it from the file's tables, damaged or not. The quality is the one whose table for lightness comes
/// nearest to the file's.
JpegMaking jpegMaking(const QByteArray& jpeg);

}  // namespace veneerer
