#include "images/pngfilter.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace veneerer {

namespace {

using uchar = unsigned char;

// A pixel of zeros stands ahead of each line: what lies left of its first one.
constexpr std::size_t kPixel = 3;
constexpr std::size_t kBlock = 960;  // bytes, after which a filter that is beaten is given up

// The loops are left to the compiler to do many bytes at a time.
template <class Predict>
void subtract(const uchar* line, const uchar* above, uchar* out, std::size_t bytes, Predict predict) {
  for (std::size_t i = 0; i < bytes; ++i)
    out[i] = static_cast<uchar>(line[i] - predict(line[i - kPixel], above[i], above[i - kPixel]));
}

// A difference is as large as its way to 0, either way round.
std::size_t sumOf(const uchar* differences, std::size_t bytes) {
  unsigned sum = 0;
  for (std::size_t i = 0; i < bytes; ++i)
    sum += std::min(differences[i], static_cast<uchar>(-differences[i]));
  return sum;
}

uchar nearest(uchar left, uchar above, uchar corner) {
  const auto fromLeft = static_cast<std::int16_t>(std::abs(above - corner));
  const auto fromAbove = static_cast<std::int16_t>(std::abs(left - corner));
  const auto fromCorner = static_cast<std::int16_t>(std::abs(left + above - 2 * corner));
  const uchar further = fromAbove <= fromCorner ? above : corner;
  const std::int16_t least = std::min(fromAbove, fromCorner);
  return fromLeft <= least ? left : further;
}

}  // namespace

PngFilter::PngFilter(std::size_t bytes)
    : bytes_(bytes), line_(kPixel + bytes), above_(kPixel + bytes), best_(1 + bytes), tried_(1 + bytes) {}

uchar* PngFilter::ofPixels(Bytes& bytes) {
  return bytes.data() + kPixel;
}

template <class Predict>
void PngFilter::tryFilter(uchar number, Predict predict) {
  std::size_t sum = 0;
  for (std::size_t at = 0; at < bytes_ && sum < least_; at += kBlock) {
    const std::size_t count = std::min(kBlock, bytes_ - at);
    uchar* out = tried_.data() + 1 + at;
    subtract(ofPixels(line_) + at, ofPixels(above_) + at, out, count, predict);
    sum += sumOf(out, count);
  }
  if (sum >= least_) return;
  least_ = sum;
  tried_.front() = number;
  best_.swap(tried_);
}

std::span<const uchar> PngFilter::filtered() {
  least_ = std::numeric_limits<std::size_t>::max();
  tryFilter(0, [](uchar, uchar, uchar) { return uchar(0); });
  tryFilter(1, [](uchar left, uchar, uchar) { return left; });
  tryFilter(2, [](uchar, uchar above, uchar) { return above; });
  tryFilter(3, [](uchar left, uchar above, uchar) { return static_cast<uchar>((left + above) / 2); });
  tryFilter(4, nearest);
  line_.swap(above_);
  return best_;
}

}  // namespace veneerer
