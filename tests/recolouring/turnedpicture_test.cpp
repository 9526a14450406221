// Pictures turned: what of a file changes, and what stays to the byte.
#include "recolouring/turnedpicture.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QtEndian>

#include "images/cjpeg.h"
#include "images/jpegmaking.h"
#include "support/files.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

constexpr ColourTurn kTurn{.hue = 120, .saturation = -30};

class TurnedPictures : public testing::Test {
protected:
  QString path(const QString& name) const { return root.filePath(name); }
  TurnedPicture turn(const QString& name, const ColourTurn& by = kTurn) {
    return turnedPicture(path(name), by, [this] { ++steps; });
  }
  TurnedPicture turnBytes(const QByteArray& bytes, const QString& name = "a.bin") {
    test::writeBytes(path(name), bytes);
    return turn(name);
  }
  static QImage decoded(const QByteArray& bytes) { return QImage::fromData(bytes); }
  /// The pixels of the file, each turned by itself.
  static QImage expected(const QImage& image) {
    QImage made = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < made.height(); ++y)
      for (int x = 0; x < made.width(); ++x) made.setPixel(x, y, veneerer::turned(made.pixel(x, y), kTurn));
    return made;
  }
  /// All colours, soft, with every alpha.
  static QImage colourful(QImage::Format format) {
    QImage image(64, 48, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        image.setPixel(x, y, qRgba(x * 4, y * 5, 255 - x * 3, (x * 5 + y) % 256));
    return image.convertToFormat(format);
  }

  QTemporaryDir root;
  int steps = 0;
};

QByteArray table(std::initializer_list<QRgb> colours) {
  QByteArray bytes;
  for (const QRgb colour : colours)
    for (const int part : {qRed(colour), qGreen(colour), qBlue(colour)}) bytes += static_cast<char>(part);
  return bytes;
}

/// Two frames of one pixel with a table of their own each, of which the second lets what is behind show.
QByteArray gifOf(const QByteArray& common, const QByteArray& own) {
  const QByteArray pixel("\x02\x02\x44\x01\x00", 5);
  return QByteArray("GIF89a\1\0\1\0\x80\0\0", 13) + common +
         QByteArray("!\xFF\x0BNETSCAPE2.0\3\1\0\0\0", 19) + QByteArray("!\xF9\4\x08\7\0\0\0", 8) +
         QByteArray(",\0\0\0\0\1\0\1\0\0", 10) + pixel + QByteArray("!\xFE\5hello\0", 9) +
         QByteArray("!\xF9\4\x05\x2C\1\1\0", 8) + QByteArray(",\0\0\0\0\1\0\1\0\x80", 10) + own + pixel + ';';
}

TEST_F(TurnedPictures, OfAGifTheTablesAloneChange) {
  const QRgb red = qRgb(200, 20, 20);
  const QRgb blue = qRgb(20, 20, 200);
  const QRgb grey = qRgb(90, 90, 90);
  const auto made = [](QRgb colour) { return veneerer::turned(colour, kTurn); };
  const QByteArray gif = gifOf(table({red, grey}), table({blue, red}));
  ASSERT_FALSE(decoded(gif).isNull());
  const TurnedPicture turned = turnBytes(gif);
  ASSERT_TRUE(turned.bytes) << turned.fault.toStdString();
  EXPECT_EQ(*turned.bytes, gifOf(table({made(red), grey}), table({made(blue), made(red)})));
  EXPECT_FALSE(turnBytes(gifOf(table({grey, grey}), table({grey, qRgb(0, 0, 0)}))).bytes);
  // Wherever it is cut, nothing outside of it is touched.
  for (qsizetype size = 0; size < gif.size(); ++size) turnBytes(gif.left(size));
}

TEST_F(TurnedPictures, OfAPngAlphaDepthAndPaletteStay) {
  for (const QImage::Format format : {QImage::Format_ARGB32, QImage::Format_RGB32}) {
    QImage image = colourful(format);
    image.setText("Title", "A & B");
    image.save(path("a.png"));
    const TurnedPicture turned = turn("a.png");
    ASSERT_TRUE(turned.bytes);
    const QImage made = decoded(*turned.bytes);
    EXPECT_EQ(made.format(), format);
    EXPECT_EQ(made.convertToFormat(QImage::Format_ARGB32), expected(image));
    EXPECT_EQ(made.text("Title"), "A & B");
  }
  EXPECT_GT(steps, 0);

  QImage image = colourful(QImage::Format_RGB32).convertToFormat(QImage::Format_Indexed8);
  image.setColor(3, image.color(3) & 0x30FFFFFF);
  image.save(path("a.png"));
  const QImage before(path("a.png"));
  const TurnedPicture turned = turn("a.png");
  ASSERT_TRUE(turned.bytes);
  EXPECT_EQ(turned.bytes->size(), test::bytesOf(path("a.png")).size());
  const QImage made = decoded(*turned.bytes);
  EXPECT_EQ(made.format(), QImage::Format_Indexed8);
  EXPECT_EQ(made.convertToFormat(QImage::Format_ARGB32), expected(before));

  colourful(QImage::Format_RGB32).convertToFormat(QImage::Format_Grayscale8).save(path("a.png"));
  EXPECT_FALSE(turn("a.png").bytes) << "greys have nothing to turn";
  const TurnedPicture darker = turn("a.png", {.lightness = -50});
  ASSERT_TRUE(darker.bytes);
  EXPECT_TRUE(decoded(*darker.bytes).isGrayscale());
}

TEST_F(TurnedPictures, OfABitmapTheColoursAloneChange) {
  for (const QImage::Format format :
       {QImage::Format_Indexed8, QImage::Format_Mono, QImage::Format_RGB32, QImage::Format_RGB888}) {
    colourful(format).save(path("a.bmp"));
    const QImage before(path("a.bmp"));
    const QByteArray bytes = test::bytesOf(path("a.bmp"));
    const TurnedPicture turned = turn("a.bmp");
    if (format == QImage::Format_Mono) {
      EXPECT_FALSE(turned.bytes) << "black and white";
      continue;
    }
    ASSERT_TRUE(turned.bytes) << format;
    EXPECT_EQ(turned.bytes->left(54), bytes.left(54));
    EXPECT_EQ(decoded(*turned.bytes).convertToFormat(QImage::Format_ARGB32), expected(before)) << format;
  }
}

TEST_F(TurnedPictures, OfABitmapOfSixteenBitsTheOtherBitsStay) {
  // 5, 5 and 5 bits of a pixel, of which the highest is nobody's.
  QByteArray bytes("BM", 2);
  const auto add = [&](quint32 number) {
    number = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char*>(&number), 4);
  };
  for (const quint32 number : {58U, 0U, 54U, 40U, 2U, 1U, 16U << 16 | 1U, 0U, 4U, 0U, 0U, 0U, 0U})
    add(number);
  bytes.resize(54);
  constexpr quint32 kRedWithBit = 0x8000U | 31U << 10;
  constexpr quint32 kGrey = 16U << 10 | 16U << 5 | 16U;
  add(kGrey << 16 | kRedWithBit);
  ASSERT_EQ(decoded(bytes).size(), QSize(2, 1));
  test::writeBytes(path("a.bmp"), bytes);
  const TurnedPicture turned = turn("a.bmp", {.hue = 120});
  ASSERT_TRUE(turned.bytes) << turned.fault.toStdString();
  EXPECT_EQ(qFromLittleEndian<quint16>(turned.bytes->constData() + 54), 0x8000U | 31U << 5);
  EXPECT_EQ(turned.bytes->mid(56), bytes.mid(56));
}

// A decoder goes on behind the head, so its bytes are no colours either.
TEST_F(TurnedPictures, OfABitmapThatTellsAWrongPlaceTheHeadStays) {
  for (const QImage::Format format : {QImage::Format_Indexed8, QImage::Format_RGB888}) {
    colourful(format).save(path("a.bmp"));
    QByteArray bytes = test::bytesOf(path("a.bmp"));
    const QImage before(path("a.bmp"));
    qToLittleEndian(quint32{20}, bytes.data() + 10);
    const TurnedPicture turned = turnBytes(bytes);
    ASSERT_TRUE(turned.bytes) << format;
    EXPECT_EQ(turned.bytes->left(54), bytes.left(54));
    EXPECT_EQ(decoded(*turned.bytes).convertToFormat(QImage::Format_ARGB32), expected(before)) << format;
  }
  QByteArray odd = test::bytesOf(path("a.bmp"));
  odd[14] = 41;
  EXPECT_FALSE(turnBytes(odd).bytes) << "a head of no known form";
}

TEST_F(TurnedPictures, AJpegKeepsItsQualityAndItsSampling) {
  cImage pixels;
  pixels.CopyPicture(colourful(QImage::Format_RGB32).scaled(640, 480));
  for (const int quality : {35, 75, 96}) {
    cJpeg encoder;
    encoder.setQuality(quality);
    encoder.SetSamplingFrequencies(2, 1, 1, 1, 1, 1);
    encoder.SampleImage(pixels);
    const QByteArray bytes = encoder.encode().bytes;
    const TurnedPicture turned = turnBytes(bytes, "named.bmp");
    ASSERT_TRUE(turned.bytes) << "by its content, not by its name";
    const JpegMaking making = jpegMaking(*turned.bytes);
    EXPECT_EQ(making.quality, quality);
    EXPECT_EQ(making.sampling, jpegMaking(bytes).sampling);
    EXPECT_EQ(making.sampling, (std::array<int, 6>{2, 1, 1, 1, 1, 1}));
    const QImage was =
        expected(decoded(bytes)).scaled(32, 24, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage is = decoded(*turned.bytes).scaled(32, 24, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    EXPECT_LT(test::largestDifference(is.convertToFormat(QImage::Format_ARGB32), was), 24) << quality;
    EXPECT_LT(std::abs(turned.bytes->size() - bytes.size()), bytes.size() / 4);
  }
}

TEST_F(TurnedPictures, WhatCantBeDecodedIsToldAndWhatIsNoPictureIsNot) {
  EXPECT_FALSE(turnBytes("GIF89a and no more", "a.gif").fault.isEmpty());
  EXPECT_FALSE(turnBytes("\xFF\xD8\xFF no more", "a.txt").fault.isEmpty());
  EXPECT_FALSE(turnBytes("nonsense", "a.JPG").fault.isEmpty());
  EXPECT_FALSE(turnBytes(QByteArray("\0\0\1\0 an icon", 12), "a.ico").fault.isEmpty());
  const TurnedPicture text = turnBytes("nonsense", "a.txt");
  EXPECT_TRUE(text.fault.isEmpty());
  EXPECT_FALSE(text.bytes);
}

}  // namespace
}  // namespace veneerer
