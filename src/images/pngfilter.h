// The filters of the PNG format: a line as its differences from what lies left of it and above it.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace veneerer {

/// Takes the lines of a picture of three bytes a pixel from top to bottom.
class PngFilter {
public:
  /// The bytes of a line, three a pixel.
  explicit PngFilter(std::size_t bytes);

  /// Where the next line is to be put.
  std::span<unsigned char> line() { return {ofPixels(line_), bytes_}; }
  /// That line as it stands in the file: the number of its filter, and its differences. Of all filters it is
  /// the one with the least sum of differences, the first of several. It holds until the next call.
  std::span<const unsigned char> filtered();

private:
  using Bytes = std::vector<unsigned char>;

  static unsigned char* ofPixels(Bytes& bytes);
  template <class Predict>
  void tryFilter(unsigned char number, Predict predict);

  std::size_t bytes_;
  Bytes line_;
  Bytes above_;
  Bytes best_;
  Bytes tried_;
  std::size_t least_ = 0;  ///< the sum of the best one's differences
};

}  // namespace veneerer
