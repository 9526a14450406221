#include "images/fastpng.h"

#include <zlib.h>

#include <QColorSpace>
#include <QtEndian>
#include <algorithm>
#include <new>
#include <span>

#include "images/pictureencoding.h"
#include "images/pngfilter.h"

namespace veneerer {

namespace {

constexpr qsizetype kPiece = 8192;     // bytes of compressed data in one chunk
constexpr qint64 kLeastBytes = 65536;  // of pixels; below it libpng chooses a smaller window
constexpr int kFastest = 1;            // zlib's level for kFastPng
constexpr int kWindowBits = 15;
constexpr int kMemoryLevel = 8;

void appendNumber(QByteArray& bytes, quint32 number) {
  const quint32 big = qToBigEndian(number);
  bytes.append(reinterpret_cast<const char*>(&big), sizeof big);
}

void appendChunk(QByteArray& png, const char* type, QByteArrayView content) {
  appendNumber(png, static_cast<quint32>(content.size()));
  const qsizetype from = png.size();
  png.append(type, 4).append(content);
  const auto* checked = reinterpret_cast<const Bytef*>(png.constData() + from);
  appendNumber(png, static_cast<quint32>(crc32(0, checked, static_cast<uInt>(png.size() - from))));
}

QByteArray header(QSize size) {
  QByteArray bytes;
  appendNumber(bytes, static_cast<quint32>(size.width()));
  appendNumber(bytes, static_cast<quint32>(size.height()));
  // Eight bits a colour, red, green and blue, no interlacing.
  return bytes.append("\x08\x02\x00\x00\x00", 5);
}

QByteArray resolution(const QImage& image) {
  QByteArray bytes;
  appendNumber(bytes, static_cast<quint32>(image.dotsPerMeterX()));
  appendNumber(bytes, static_cast<quint32>(image.dotsPerMeterY()));
  return bytes.append('\x01');
}

class Compression {
public:
  explicit Compression(std::size_t most) {
    if (deflateInit2(&stream_, kFastest, Z_DEFLATED, kWindowBits, kMemoryLevel, Z_FILTERED) != Z_OK)
      throw std::bad_alloc();
    bytes_.resize(static_cast<qsizetype>(deflateBound(&stream_, most)));
    stream_.next_out = reinterpret_cast<Bytef*>(bytes_.data());
    stream_.avail_out = static_cast<uInt>(bytes_.size());
  }
  ~Compression() { deflateEnd(&stream_); }
  Compression(const Compression&) = delete;
  Compression& operator=(const Compression&) = delete;

  void add(std::span<const unsigned char> bytes) {
    stream_.next_in = const_cast<Bytef*>(bytes.data());
    stream_.avail_in = static_cast<uInt>(bytes.size());
    deflate(&stream_, Z_NO_FLUSH);
  }
  QByteArray finished() {
    deflate(&stream_, Z_FINISH);
    bytes_.truncate(static_cast<qsizetype>(stream_.total_out));
    return bytes_;
  }

private:
  z_stream stream_{};
  QByteArray bytes_;
};

void putPixels(const QRgb* pixels, std::span<unsigned char> line) {
  for (auto* out = line.data(); out != line.data() + line.size(); ++pixels) {
    *out++ = static_cast<unsigned char>(qRed(*pixels));
    *out++ = static_cast<unsigned char>(qGreen(*pixels));
    *out++ = static_cast<unsigned char>(qBlue(*pixels));
  }
}

QByteArray compressedPixels(const QImage& image) {
  const auto bytes = 3 * static_cast<std::size_t>(image.width());
  PngFilter filter(bytes);
  Compression compression((1 + bytes) * static_cast<std::size_t>(image.height()));
  for (int y = 0; y < image.height(); ++y) {
    putPixels(reinterpret_cast<const QRgb*>(image.constScanLine(y)), filter.line());
    compression.add(filter.filtered());
  }
  return compression.finished();
}

bool isForToolkit(const QImage& image) {
  const bool isPlain = image.format() == QImage::Format_RGB32 && image.offset().isNull() &&
                       !image.colorSpace().isValid() && image.textKeys().isEmpty() &&
                       image.dotsPerMeterX() > 0 && image.dotsPerMeterY() > 0;
  return !isPlain || image.width() < 2 || image.height() < 2 || image.sizeInBytes() < kLeastBytes;
}

}  // namespace

QByteArray fastPng(const QImage& image) {
  if (isForToolkit(image)) return encodePicture(image, "PNG", kFastPng);
  QByteArray png("\x89PNG\r\n\x1A\n", 8);
  appendChunk(png, "IHDR", header(image.size()));
  appendChunk(png, "pHYs", resolution(image));
  const QByteArray pixels = compressedPixels(image);
  for (qsizetype at = 0; at < pixels.size(); at += kPiece)
    appendChunk(png, "IDAT", QByteArrayView(pixels).sliced(at, std::min(kPiece, pixels.size() - at)));
  appendChunk(png, "IEND", {});
  return png;
}

}  // namespace veneerer
