#include "images/pngfilter.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace veneerer {

namespace {

using Byte = unsigned char;

// A pixel of zeros stands ahead of each line: what lies left of its first one.
constexpr std::size_t kPixel = 3;
constexpr std::size_t kBlock = 960;  // bytes, after which a filter that is beaten is given up

// The loops are left to the compiler to do many bytes at a time.
template <class Predict>
void subtract(const Byte* line, const Byte* above, Byte* out, std::size_t bytes, Predict predict) {
  const Byte* left = line - kPixel;
  const Byte* corner = above - kPixel;
  for (std::size_t i = 0; i < bytes; ++i)
    out[i] = static_cast<Byte>(line[i] - predict(left[i], above[i], corner[i]));
}

// A difference is as large as its way to 0, either way round.
std::size_t sumOf(const Byte* differences, std::size_t bytes) {
  unsigned sum = 0;
  for (std::size_t i = 0; i < bytes; ++i) sum += std::min(differences[i], static_cast<Byte>(-differences[i]));
  return sum;
}

Byte nearest(Byte left, Byte above, Byte corner) {
  const auto fromLeft = static_cast<std::int16_t>(std::abs(above - corner));
  const auto fromAbove = static_cast<std::int16_t>(std::abs(left - corner));
  const auto fromCorner = static_cast<std::int16_t>(std::abs(left + above - 2 * corner));
  const Byte further = fromAbove <= fromCorner ? above : corner;
  const std::int16_t least = std::min(fromAbove, fromCorner);
  return fromLeft <= least ? left : further;
}

}  // namespace

PngFilter::PngFilter(std::size_t bytes)
    : bytes_(bytes), line_(kPixel + bytes), above_(kPixel + bytes), best_(1 + bytes), tried_(1 + bytes) {}

Byte* PngFilter::ofPixels(Bytes& bytes) {
  return bytes.data() + kPixel;
}

template <class Predict>
void PngFilter::tryFilter(Byte number, Predict predict) {
  std::size_t sum = 0;
  for (std::size_t at = 0; at < bytes_ && sum < least_; at += kBlock) {
    const std::size_t count = std::min(kBlock, bytes_ - at);
    Byte* out = tried_.data() + 1 + at;
    subtract(ofPixels(line_) + at, ofPixels(above_) + at, out, count, predict);
    sum += sumOf(out, count);
  }
  if (sum >= least_) return;
  least_ = sum;
  tried_.front() = number;
  best_.swap(tried_);
}

std::span<const Byte> PngFilter::filtered() {
  least_ = std::numeric_limits<std::size_t>::max();
  tryFilter(0, [](Byte, Byte, Byte) { return Byte(0); });
  tryFilter(1, [](Byte left, Byte, Byte) { return left; });
  tryFilter(2, [](Byte, Byte above, Byte) { return above; });
  tryFilter(3, [](Byte left, Byte above, Byte) { return static_cast<Byte>((left + above) / 2); });
  tryFilter(4, nearest);
  line_.swap(above_);
  return best_;
}

}  // namespace veneerer
