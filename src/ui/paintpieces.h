// What has to be repainted, in pieces that don't take long.
#pragma once

#include <QRegion>

namespace veneerer {

/// A stranger's Skin may take any time to paint. Its canvas is painted piece by piece, and the pieces become
/// smaller when one takes long. In a small piece more is hidden by what stands in front.
class PaintPieces {
public:
  // The sides of a piece, pixels. All between are halves of the longest, so that pieces of different sizes
  // share their borders.
  static constexpr int kLongestSide = 256;
  static constexpr int kShortestSide = 64;

  /// What is painted from now on may be far slower than what was painted last, as a whole or here and there:
  /// the pieces are small until many of them were quick.
  void begin();

  /// Takes the next piece out of the region, which mustn't be empty.
  QRect take(QRegion& region) const;

  /// A piece of that size took so many milliseconds to paint.
  void took(QSize piece, double milliseconds);
  int side() const { return side_; }

private:
  int side_ = kShortestSide;
  int quick_ = 0;  ///< so many pieces of that side were quick, one behind the other
};

}  // namespace veneerer
