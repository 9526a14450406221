#include "recolouring/turnedbitmap.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <bit>

namespace veneerer {

namespace {

// Places in the file, which is little endian; sizes in bytes.
constexpr qsizetype kFileHeader = 14;
constexpr qsizetype kPixelsAt = 10;
constexpr qsizetype kOldHeader = 12;
constexpr qsizetype kHeader = 40;
constexpr qsizetype kMasks = 12;
constexpr std::array<qsizetype, 5> kHeaders = {kOldHeader, kHeader, 64, 108, 124};

// How pixels are packed.
constexpr quint32 kPlain = 0;
constexpr quint32 kByMasks = 3;
constexpr quint32 kByMasksWithAlpha = 6;

template <class T>
T numberAt(const QByteArray& bytes, qsizetype at) {
  return at + qsizetype{sizeof(T)} <= bytes.size() ? qFromLittleEndian<T>(bytes.constData() + at) : T{};
}

/// What the head of a file tells.
struct BitmapHead {
  explicit BitmapHead(const QByteArray& bytes)
      : size(numberAt<quint32>(bytes, kFileHeader)), isOld(size == kOldHeader) {
    width = isOld ? numberAt<quint16>(bytes, 18) : numberAt<qint32>(bytes, 18);
    height = std::abs(isOld ? qint64{numberAt<qint16>(bytes, 20)} : qint64{numberAt<qint32>(bytes, 22)});
    bits = numberAt<quint16>(bytes, isOld ? 24 : 28);
    packing = isOld ? kPlain : numberAt<quint32>(bytes, 30);
    colours = isOld ? 0 : numberAt<quint32>(bytes, 46);
    pixels = numberAt<quint32>(bytes, kPixelsAt);
    hasPlace = pixels >= end();
    // A decoder goes on behind the head where the file tells a place within.
    if (!hasPlace) pixels = end() + (hasMasks() && size == kHeader ? kMasks : 0);
  }

  /// Whether what is told stands where it is expected.
  bool isKnown() const { return std::ranges::find(kHeaders, size) != kHeaders.end(); }
  /// Where the head ends: behind it stand masks or the palette.
  qsizetype end() const { return kFileHeader + size; }
  bool hasMasks() const { return packing == kByMasks || packing == kByMasksWithAlpha; }
  /// Bytes of a row, which ends with a whole group of four.
  qsizetype row() const { return (width * bits + 31) / 32 * 4; }

  qsizetype size;
  bool isOld;  ///< of the first form, whose palette has no fourth byte
  qint64 width;
  qint64 height;
  int bits;  ///< of a pixel
  quint32 packing;
  qsizetype colours;  ///< of the palette, 0 for as many as there may be
  qsizetype pixels;   ///< where they begin
  bool hasPlace;      ///< the file tells it
};

bool turnPalette(QByteArray& bytes, const BitmapHead& head, PixelTurner& turner) {
  const qsizetype entry = head.isOld ? 3 : 4;
  const qsizetype most = qsizetype{1} << head.bits;
  const qsizetype told = head.colours == 0 ? most : std::min(head.colours, most);
  const qsizetype room = head.hasPlace ? (head.pixels - head.end()) / entry : told;
  return turner.turnEntries(bytes, head.end(), std::min(told, room), entry, PixelTurner::Order::BlueFirst);
}

/// Calls for every row that the file has in full with the place where it begins.
template <class TurnRow>
bool turnRows(const QByteArray& bytes, const BitmapHead& head, const Step& step, TurnRow turnRow) {
  constexpr qint64 kRowsOfStep = 64;
  bool isOther = false;
  for (qint64 y = 0; y < head.height; ++y) {
    const qsizetype from = head.pixels + y * head.row();
    if (from + head.row() > bytes.size()) break;
    if (y % kRowsOfStep == 0) step();
    isOther |= turnRow(from);
  }
  return isOther;
}

/// The bits of a pixel that hold one part of its colour.
struct Part {
  quint32 mask;

  int shift() const { return std::countr_zero(mask); }
  quint32 most() const { return mask >> shift(); }
  int of(quint32 pixel) const { return static_cast<int>(quint64{(pixel & mask) >> shift()} * 255 / most()); }
  quint32 with(int value) const {
    return static_cast<quint32>((quint64(value) * most() + 127) / 255) << shift();
  }
};
using Parts = std::array<Part, 3>;

Parts partsOf(const QByteArray& bytes, const BitmapHead& head) {
  if (!head.hasMasks())
    return head.bits == 16 ? Parts{{{0x7C00}, {0x03E0}, {0x001F}}}
                           : Parts{{{0xFF0000}, {0x00FF00}, {0x0000FF}}};
  constexpr qsizetype kMasksAt = kFileHeader + kHeader;
  const auto mask = [&](int i) { return Part{numberAt<quint32>(bytes, kMasksAt + 4 * i)}; };
  return {mask(0), mask(1), mask(2)};
}

quint32 turnedPixel(quint32 pixel, const Parts& parts, PixelTurner& turner) {
  const QRgb colour = qRgb(parts[0].of(pixel), parts[1].of(pixel), parts[2].of(pixel));
  const QRgb made = turner.turned(colour);
  if (made == colour) return pixel;
  const quint32 others = pixel & ~(parts[0].mask | parts[1].mask | parts[2].mask);
  return others | parts[0].with(qRed(made)) | parts[1].with(qGreen(made)) | parts[2].with(qBlue(made));
}

template <class T>
bool turnMasked(QByteArray& bytes, const BitmapHead& head, PixelTurner& turner, const Step& step) {
  const Parts parts = partsOf(bytes, head);
  if (std::ranges::any_of(parts, [](const Part& part) { return part.mask == 0; })) return false;
  return turnRows(bytes, head, step, [&](qsizetype from) {
    bool isOther = false;
    for (qint64 x = 0; x < head.width; ++x) {
      char* at = bytes.data() + from + x * qsizetype{sizeof(T)};
      const T pixel = qFromLittleEndian<T>(at);
      const T made = static_cast<T>(turnedPixel(pixel, parts, turner));
      qToLittleEndian<T>(made, at);
      isOther |= made != pixel;
    }
    return isOther;
  });
}

}  // namespace

std::optional<QByteArray> turnedBitmap(const QByteArray& bitmap, PixelTurner& turner, const Step& step) {
  QByteArray made = bitmap;
  const BitmapHead head(made);
  bool isOther = false;
  if (!head.isKnown()) return QByteArray();
  if (head.bits <= 8)
    isOther = turnPalette(made, head, turner);
  else if (head.packing != kPlain && !head.hasMasks())
    return QByteArray();
  else if (head.bits == 24)
    isOther = turnRows(made, head, step, [&](qsizetype from) {
      return turner.turnEntries(made, from, head.width, 3, PixelTurner::Order::BlueFirst);
    });
  else if (head.bits == 16)
    isOther = turnMasked<quint16>(made, head, turner, step);
  else
    isOther = turnMasked<quint32>(made, head, turner, step);
  return isOther ? std::optional(made) : std::nullopt;
}

}  // namespace veneerer
