#include "ui/paintpieces.h"

#include <algorithm>

namespace veneerer {

namespace {

// For one piece, milliseconds; well within what an operator notices, as the next one may be slower.
constexpr double kSlow = 20;
constexpr double kQuick = 4;

// So many quick pieces in a row make the next ones longer: about a row across a canvas, which may be slow
// along its edges alone.
constexpr int kManyPieces = 8;

}  // namespace

void PaintPieces::begin() {
  side_ = kShortestSide;
  quick_ = 0;
}

QRect PaintPieces::take(QRegion& region) const {
  const QRect first = *region.begin();
  const QPoint corner(first.left() / side_ * side_, first.top() / side_ * side_);
  const QRect piece = first & QRect(corner, QSize(side_, side_));
  region -= piece;
  return piece;
}

void PaintPieces::took(QSize piece, double milliseconds) {
  const bool isWhole = piece.width() >= side_ && piece.height() >= side_;
  if (milliseconds >= kQuick) quick_ = 0;
  if (isWhole && milliseconds < kQuick && ++quick_ == kManyPieces) {
    side_ = std::min(side_ * 2, kLongestSide);
    quick_ = 0;
  }
  // Half the side may cost half as much or a quarter.
  for (double expected = milliseconds; expected > kSlow && side_ > kShortestSide; expected /= 2) side_ /= 2;
}

}  // namespace veneerer
