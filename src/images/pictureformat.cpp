#include "images/pictureformat.h"

#include <QtEndian>
#include <cstring>

namespace veneerer {

namespace {

constexpr QByteArrayView kPngSignature("\x89PNG\r\n\x1a\n", 8);

struct Magic {
  QByteArrayView bytes;
  PictureFormat format;
};
constexpr Magic kMagics[] = {
    {QByteArrayView("\0\0\1\0", 4), PictureFormat::Icon},
    {QByteArrayView("\0\0\2\0", 4), PictureFormat::Icon},
    {QByteArrayView("BM", 2), PictureFormat::Bitmap},
    {QByteArrayView("GIF8", 4), PictureFormat::Gif},
    {QByteArrayView("\xFF\xD8\xFF", 3), PictureFormat::Jpeg},
    {QByteArrayView("\x89PNG", 4), PictureFormat::Png},
};

bool makesPixels(const char* type) {
  // A capital first letter marks what no decoder can do without.
  return (type[0] >= 'A' && type[0] <= 'Z') || std::memcmp(type, "tRNS", 4) == 0;
}

}  // namespace

PictureFormat formatOf(const QByteArray& head) {
  for (const Magic& magic : kMagics)
    if (head.startsWith(magic.bytes)) return magic.format;
  return PictureFormat::None;
}

const char* decoderOf(PictureFormat format) {
  constexpr const char* kDecoders[] = {nullptr, "bmp", "gif", "jpg", "png", "ico"};
  return kDecoders[static_cast<int>(format)];
}

QSize gifSize(const QByteArray& gif) {
  constexpr qsizetype kSignature = 6;  // bytes
  if (gif.size() < kSignature + 4) return {};
  const char* const sides = gif.constData() + kSignature;
  return {qFromLittleEndian<quint16>(sides), qFromLittleEndian<quint16>(sides + 2)};
}

void dropPngExtras(QByteArray& png) {
  constexpr qsizetype kAroundData = 12;  // length, type and check sum of a chunk, bytes
  char* const bytes = png.data();
  qsizetype from = kPngSignature.size();
  qsizetype to = from;
  while (from + kAroundData <= png.size()) {
    const qsizetype chunk = kAroundData + qFromBigEndian<quint32>(bytes + from);
    if (chunk > png.size() - from) break;
    if (makesPixels(bytes + from + 4)) {
      std::memmove(bytes + to, bytes + from, static_cast<std::size_t>(chunk));
      to += chunk;
    }
    from += chunk;
  }
  png.remove(to, from - to);
}

QByteArray pngOfIcon(const QByteArray& icon) {
  constexpr qsizetype kFirstEntryEnd = 6 + 16;  // bytes
  if (icon.size() < kFirstEntryEnd) return {};
  const qint64 length = qFromLittleEndian<quint32>(icon.constData() + 14);
  const qint64 start = qFromLittleEndian<quint32>(icon.constData() + 18);
  const QByteArray picture = start <= icon.size() ? icon.mid(start, length) : QByteArray();
  return picture.startsWith(kPngSignature) ? picture : QByteArray();
}

}  // namespace veneerer
