#include "images/jpegmaking.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "images/jpegsegments.h"

namespace veneerer {

namespace {

constexpr int kCells = 64;
using Table = std::array<int, kCells>;

// The format's own table for lightness at quality 50, in the order in which files hold it.
constexpr Table kLightness = {16, 11, 12,  14,  12,  10, 16, 14,  13,  14,  18,  17,  16, 19,  24,  40,
                              26, 24, 22,  22,  24,  49, 35, 37,  29,  40,  58,  51,  61, 60,  57,  51,
                              56, 55, 64,  72,  92,  78, 64, 68,  87,  69,  55,  56,  80, 109, 81,  87,
                              95, 98, 103, 104, 103, 62, 77, 113, 121, 112, 100, 120, 92, 101, 103, 99};

constexpr int kTables = 0xDB;

int byteAt(QByteArrayView bytes, qsizetype at) {
  return at < bytes.size() ? static_cast<uchar>(bytes[at]) : 0;
}

/// How far the table of that quality is from another one.
int distance(const Table& table, int quality) {
  const int percent = quality < 50 ? 5000 / quality : 200 - 2 * quality;
  int sum = 0;
  for (std::size_t i = 0; i < kCells; ++i)
    sum += std::abs(std::clamp((kLightness[i] * percent + 50) / 100, 1, 255) - table[i]);
  return sum;
}

int nearestQuality(const Table& table) {
  int nearest = 1;
  int least = std::numeric_limits<int>::max();
  // Of several as near the highest.
  for (int quality = 1; quality <= 100; ++quality) {
    const int away = distance(table, quality);
    if (away > least) continue;
    least = away;
    nearest = quality;
  }
  return nearest;
}

/// Several tables stand in one segment: the first one of number 0 is that for lightness.
void readTables(QByteArrayView segment, JpegMaking& making) {
  for (qsizetype at = 0; at < segment.size();) {
    const int kind = byteAt(segment, at++);
    const int bytesOfCell = kind >> 4 == 0 ? 1 : 2;
    if (at + kCells * bytesOfCell > segment.size()) return;
    if ((kind & 0x0F) == 0) {
      Table table{};
      for (std::size_t i = 0; i < kCells; ++i) {
        const qsizetype cell = at + static_cast<qsizetype>(i) * bytesOfCell;
        table[i] = bytesOfCell == 1 ? byteAt(segment, cell)
                                    : byteAt(segment, cell) * 256 + byteAt(segment, cell + 1);
      }
      making.quality = nearestQuality(table);
      return;
    }
    at += kCells * bytesOfCell;
  }
}

bool isFrame(int code) {
  return code >= 0xC0 && code <= 0xCF && code != 0xC4 && code != 0xC8 && code != 0xCC;
}

void readFrame(QByteArrayView segment, JpegMaking& making) {
  constexpr qsizetype kCountAt = 5;
  constexpr qsizetype kOfOne = 3;
  const int components = byteAt(segment, kCountAt);
  if (components == 1) making.sampling.fill(1);
  if (components != 3) return;
  for (std::size_t i = 0; i < 3; ++i) {
    const int both = byteAt(segment, kCountAt + 2 + static_cast<qsizetype>(i) * kOfOne);
    making.sampling[2 * i] = both >> 4;
    making.sampling[2 * i + 1] = both & 0x0F;
  }
}

}  // namespace

JpegMaking jpegMaking(const QByteArray& jpeg) {
  JpegMaking making;
  JpegSegments segments(jpeg);
  while (segments.next()) {
    if (segments.code() == kTables) readTables(segments.data(), making);
    if (!isFrame(segments.code())) continue;
    readFrame(segments.data(), making);
    break;
  }
  return making;
}

}  // namespace veneerer
