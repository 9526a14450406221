#include "recolouring/turnedpng.h"

#include <QtEndian>
#include <algorithm>
#include <cstring>

#include "images/pictureencoding.h"
#include "images/pictureformat.h"

namespace veneerer {

namespace {

// Sizes and places in bytes.
constexpr qsizetype kSignature = 8;
constexpr qsizetype kHead = 25;  // the chunk behind the signature
constexpr qsizetype kColourType = 25;
constexpr int kPaletteType = 3;
constexpr qsizetype kChunkHead = 8;    // length and type
constexpr qsizetype kAroundData = 12;  // these and the check sum
constexpr qsizetype kColour = 3;

struct Chunk {
  qsizetype from;
  qsizetype size;  ///< of all of it

  bool is(const QByteArray& png, const char* type) const {
    return std::memcmp(png.constData() + from + 4, type, 4) == 0;
  }
};

/// Those that the file has in full.
QList<Chunk> chunksOf(const QByteArray& png) {
  QList<Chunk> chunks;
  for (qsizetype at = kSignature; at + kAroundData <= png.size();) {
    const qsizetype size = kAroundData + qFromBigEndian<quint32>(png.constData() + at);
    if (size > png.size() - at) break;
    chunks.append({at, size});
    at += size;
  }
  return chunks;
}

/// Of the type and the data of a chunk: https://www.w3.org/TR/png/#D-CRCAppendix.
quint32 checkSum(const char* bytes, qsizetype size) {
  quint32 sum = 0xFFFFFFFFU;
  for (qsizetype i = 0; i < size; ++i) {
    sum ^= static_cast<uchar>(bytes[i]);
    for (int bit = 0; bit < 8; ++bit) sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xEDB88320U : 0);
  }
  return ~sum;
}

std::optional<QByteArray> withTurnedPalette(const QByteArray& png, PixelTurner& turner) {
  QByteArray made = png;
  for (const Chunk& chunk : chunksOf(png)) {
    if (!chunk.is(png, "PLTE")) continue;
    const qsizetype data = chunk.size - kAroundData;
    if (!turner.turnEntries(made, chunk.from + kChunkHead, data / kColour, kColour,
                            PixelTurner::Order::RedFirst))
      return std::nullopt;
    char* const type = made.data() + chunk.from + 4;
    qToBigEndian(checkSum(type, data + 4), type + data + 4);
    return made;
  }
  return std::nullopt;
}

/// What stands between the head and the pixels and tells of a picture without being a part of it: its density
/// and gamma, texts. Colours in it would have to be turned as well.
QByteArray remarksOf(const QByteArray& png) {
  constexpr const char* kColoured[] = {"PLTE", "tRNS", "bKGD", "sBIT", "hIST", "sPLT"};
  QByteArray remarks;
  for (const Chunk& chunk : chunksOf(png)) {
    if (chunk.is(png, "IDAT")) break;
    const bool isColoured =
        std::ranges::any_of(kColoured, [&](const char* type) { return chunk.is(png, type); });
    if (!isColoured && !chunk.is(png, "IHDR")) remarks += png.mid(chunk.from, chunk.size);
  }
  return remarks;
}

}  // namespace

std::optional<QByteArray> turnedPng(const QByteArray& png, QImage image, PixelTurner& turner,
                                    const Step& step) {
  if (png.size() > kColourType && png[kColourType] == kPaletteType) return withTurnedPalette(png, turner);
  if (!turner.turn(image, step)) return std::nullopt;
  QByteArray made = encodePicture(image, "PNG");
  if (made.isEmpty()) return made;
  dropPngExtras(made);
  return made.insert(kSignature + kHead, remarksOf(png));
}

}  // namespace veneerer
