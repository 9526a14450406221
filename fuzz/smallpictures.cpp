#include "fuzz/smallpictures.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>

#include "fuzz/skinfiles.h"
#include "images/cjpeg.h"
#include "looks/gifwriter.h"
#include "support/hostilepictures.h"

namespace veneerer::fuzz {

namespace {

constexpr qsizetype kMostBytes = 3000;  // of a picture of a Skin

QImage gradient(QImage::Format format) {
  QImage image(13, 7, QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) image.setPixel(x, y, qRgba(x * 19, y * 36, 90, 255 - x * 9));
  return image.convertToFormat(format);
}

QByteArray encoded(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QImageWriter(&buffer, format).write(image);
  return bytes;
}

QByteArray progressiveJpeg() {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QImageWriter writer(&buffer, "jpg");
  writer.setProgressiveScanWrite(true);
  writer.write(gradient(QImage::Format_RGB32));
  return bytes;
}

QByteArray ourJpeg() {
  cImage pixels;
  pixels.CopyPicture(gradient(QImage::Format_RGB32));
  cJpeg jpeg;
  jpeg.SampleImage(pixels);
  return jpeg.encode().bytes;
}

/// A bitmap of 16 or 32 bits whose parts are told by masks.
QByteArray maskedBitmap(int bits) {
  const QByteArray masks =
      QByteArray::fromHex(bits == 16 ? "00f80000e00700001f000000" : "0000ff0000ff0000ff000000");
  return "BM" + QByteArray::fromHex("6200000000000000420000002800000002000000020000000100") + char(bits) +
         QByteArray::fromHex("00030000000000000000000000000000000000000000000000") + masks +
         QByteArray::fromHex("ff0000ffff00f81f0000e007f81fffff");
}

/// Runs of four pixels a row, as bitmaps of 8 bits pack them.
QByteArray packedBitmap() {
  return "BM" +
         QByteArray::fromHex(
             "4c000000000000003e00000028000000040000000200000001000800010000000e0000000000"
             "00000000000002000000020000000000ff00ff000000040100000401000001") +
         QByteArray(1, '\0');
}

/// An icon file around a picture.
QByteArray icon(const QByteArray& picture) {
  QByteArray head = QByteArray::fromHex("00000100010010100000010020000000000016000000");
  qToLittleEndian(quint32(picture.size()), head.data() + 14);
  return head + picture;
}

}  // namespace

QList<QByteArray> smallPictures() {
  QList<QByteArray> pictures{progressiveJpeg(),
                             ourJpeg(),
                             maskedBitmap(16),
                             maskedBitmap(32),
                             packedBitmap(),
                             test::flatPng({9, 4}),
                             test::scannedJpeg(3),
                             test::blinkingGif(2, 2),
                             icon(test::flatPng({16, 16}))};
  for (const QImage::Format format :
       {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_RGB32, QImage::Format_ARGB32,
        QImage::Format_Grayscale8, QImage::Format_RGBA64, QImage::Format_Grayscale16})
    for (const char* name : {"bmp", "png", "jpg"}) pictures << encoded(gradient(format), name);
  pictures << icon(encoded(gradient(QImage::Format_RGB32), "bmp").mid(14));
  const QImage frame = gradient(QImage::Format_Indexed8);
  pictures << looks::gifFile({frame}) << looks::gifFile({frame, frame.mirrored()}, {5, 0});
  pictures << shippedFiles({QStringLiteral("*.gif"), QStringLiteral("*.jpg"), QStringLiteral("*.bmp")},
                           kMostBytes)
                  .values();
  return pictures;
}

QList<QByteArray> pictureWords() {
  return {"BM",
          "GIF87a",
          "GIF89a",
          "\x89PNG\r\n\x1a\n",
          "IHDR",
          "PLTE",
          "IDAT",
          "IEND",
          "tRNS",
          "gAMA",
          "iCCP",
          "NETSCAPE2.0",
          "JFIF",
          "Adobe",
          "Exif",
          "\xFF\xD8",
          "\xFF\xD9",
          "\xFF\xDA",
          "\xFF\xC0",
          "\xFF\xC2",
          "\xFF\xC4",
          "\xFF\xDB",
          "\xFF\xDD",
          "\xFF\xE0",
          "\xFF\xEE",
          "!\xF9\x04",
          "!\xFF\x0B",
          QByteArray("\0\0\1\0", 4),
          QByteArray("\0\0\2\0", 4),
          QByteArray("(\0\0\0", 4),
          QByteArray("\0\0", 2),
          "\xFF\xFF\xFF\xFF",
          "\xFF\xFF\xFF\x7F",
          QByteArray("\0\0\0\x80", 4)};
}

}  // namespace veneerer::fuzz
