#include "images/jpegsegments.h"

#include <algorithm>
#include <cstring>

namespace veneerer {

namespace {

constexpr int kMarker = 0xFF;
constexpr int kEndOfPicture = 0xD9;

// Bare markers and those that only stand within a scan's data: a stuffed byte, a restart.
bool isBare(int code) {
  return code <= 0x01 || (code >= 0xD0 && code <= 0xD8);
}

}  // namespace

/// The place of the next marker's code; the size of the bytes when there is none. Data and garbage are passed
/// over, as decoders do it.
qsizetype JpegSegments::nextMarker(qsizetype at) const {
  while (at < bytes_.size()) {
    const auto* found =
        std::memchr(bytes_.constData() + at, kMarker, static_cast<std::size_t>(bytes_.size() - at));
    if (!found) break;
    at = static_cast<const char*>(found) - bytes_.constData();
    while (at < bytes_.size() && byteAt(at) == kMarker) ++at;
    if (at < bytes_.size() && !isBare(byteAt(at))) return at;
  }
  return bytes_.size();
}

bool JpegSegments::next() {
  // A segment's length counts its own two bytes; what claims less has none.
  at_ = nextMarker(at_ == 0 ? 0 : at_ + 1 + std::max(length(), 2));
  return at_ + 2 < bytes_.size() && code() != kEndOfPicture;
}

int JpegSegments::code() const {
  return byteAt(at_);
}

int JpegSegments::length() const {
  return at_ + 2 < bytes_.size() ? byteAt(at_ + 1) * 256 + byteAt(at_ + 2) : 0;
}

QByteArrayView JpegSegments::data() const {
  const qsizetype from = std::min(at_ + 3, bytes_.size());
  return bytes_.sliced(from, std::min<qsizetype>(std::max(length() - 2, 0), bytes_.size() - from));
}

}  // namespace veneerer
