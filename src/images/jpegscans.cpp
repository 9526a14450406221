#include "images/jpegscans.h"

#include <cstring>

namespace veneerer {

namespace {

constexpr int kMarker = 0xFF;
constexpr int kEndOfPicture = 0xD9;
constexpr int kStartOfScan = 0xDA;

int byteAt(const QByteArray& bytes, qsizetype at) {
  return static_cast<unsigned char>(bytes.at(at));
}

// Bare markers and those that only stand within a scan's data: a stuffed byte, a restart.
bool isBare(int code) {
  return code <= 0x01 || (code >= 0xD0 && code <= 0xD8);
}

/// The place of the next marker's code; the size of the bytes when there is none. Data and garbage are passed
/// over, as decoders do it.
qsizetype nextMarker(const QByteArray& bytes, qsizetype at) {
  while (at < bytes.size()) {
    const auto* found =
        std::memchr(bytes.constData() + at, kMarker, static_cast<std::size_t>(bytes.size() - at));
    if (!found) break;
    at = static_cast<const char*>(found) - bytes.constData();
    while (at < bytes.size() && byteAt(bytes, at) == kMarker) ++at;
    if (at < bytes.size() && !isBare(byteAt(bytes, at))) return at;
  }
  return bytes.size();
}

}  // namespace

int countJpegScans(const QByteArray& jpeg) {
  int scans = 0;
  for (qsizetype at = nextMarker(jpeg, 0); at + 2 < jpeg.size();) {
    const int code = byteAt(jpeg, at);
    if (code == kEndOfPicture) break;
    if (code == kStartOfScan) ++scans;
    // A segment's length counts its own two bytes; what claims less has none.
    const int length = byteAt(jpeg, at + 1) * 256 + byteAt(jpeg, at + 2);
    at = nextMarker(jpeg, at + 1 + std::max(length, 2));
  }
  return scans;
}

}  // namespace veneerer
