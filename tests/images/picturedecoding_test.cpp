// Pictures of strangers: their format, what they may cost, and what of them is passed over.
#include "images/picturedecoding.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>
#include <QTemporaryDir>

#include "images/jpegscans.h"
#include "images/pictureformat.h"
#include "support/hostilepictures.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

QByteArray jpeg(const QImage& image, bool isProgressive) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QImageWriter writer(&buffer, "jpg");
  writer.setProgressiveScanWrite(isProgressive);
  writer.write(image);
  return bytes;
}

QImage noise(QSize size) {
  QImage image(size, QImage::Format_RGB32);
  quint32 seed = 1;
  for (int y = 0; y < size.height(); ++y)
    for (int x = 0; x < size.width(); ++x) image.setPixel(x, y, (seed = seed * 1664525 + 1013904223) >> 8);
  return image;
}

TEST(JpegScans, AreCountedThroughDataSegmentsAndDamage) {
  EXPECT_EQ(countJpegScans(jpeg(noise({40, 40}), false)), 1);
  EXPECT_EQ(countJpegScans(jpeg(noise({40, 40}), true)), 10);
  EXPECT_EQ(countJpegScans(test::scannedJpeg(1000)), 1000);

  const QByteArray scan = test::jpegSegment(0xDA, QByteArray::fromHex("010100000000"));
  const QByteArray start = QByteArray::fromHex("ffd8");
  EXPECT_EQ(countJpegScans(start + scan + QByteArray::fromHex("ff0012ffd0ffff0034") + scan), 2)
      << "stuffed bytes and restarts are data";
  EXPECT_EQ(countJpegScans(start + test::jpegSegment(0xE1, scan + scan) + scan), 1)
      << "what a segment holds is none of the file's scans";
  EXPECT_EQ(countJpegScans(start + scan + QByteArray::fromHex("ffd9") + scan), 1);
  EXPECT_EQ(countJpegScans(start + "garbage" + scan + QByteArray::fromHex("ffe0ffff") + scan), 1);
  EXPECT_EQ(countJpegScans(start + QByteArray::fromHex("ffe00000") + scan), 1);
  for (const char* odd : {"", "ff", "ffd8ff", "ffd8ffda", "ffd8ffda00"})
    EXPECT_LE(countJpegScans(QByteArray::fromHex(odd)), 1) << odd;
}

class Decoding : public testing::Test {
protected:
  QString write(const QByteArray& bytes) {
    const QString path = folder.filePath(QStringLiteral("picture"));
    test::writeBytes(path, bytes);
    return path;
  }
  QImage decoded(const QByteArray& bytes) { return decodePicture(write(bytes)); }

  QTemporaryDir folder;
};

TEST_F(Decoding, AJpegOfTooManyScansIsRefused) {
  EXPECT_EQ(decoded(test::scannedJpeg(kMostJpegScans)).size(), QSize(8, 8));
  EXPECT_TRUE(decoded(test::scannedJpeg(kMostJpegScans + 1)).isNull());
}

TEST_F(Decoding, APictureOfTooManyPixelsIsRefusedHoweverItIsPacked) {
  const QByteArray large = test::flatPng({8000, 6200});
  const QByteArray tooLarge = test::flatPng({8000, 6300});
  EXPECT_LT(tooLarge.size(), 100'000);
  EXPECT_TRUE(decoded(tooLarge).isNull());
  EXPECT_FALSE(costOfPicture(write(tooLarge)).canBeDecoded);
  const PictureCost cost = costOfPicture(write(large));
  EXPECT_TRUE(cost.canBeDecoded);
  EXPECT_EQ(cost.size, QSize(8000, 6200));
}

// The decoder itself knows no size of one, and yet gives all of its pixels.
TEST_F(Decoding, AGifThatIsCutOffIsWeighedLikeAnyOther) {
  const auto cut = [](quint16 width, quint16 height) { return test::blinkingGif(width, height).left(60); };
  EXPECT_EQ(decoded(cut(300, 200)).size(), QSize(300, 200));
  EXPECT_EQ(costOfPicture(write(cut(300, 200))).work, 60 + 60'000);
  EXPECT_EQ(decodeThumbnail(write(cut(300, 200)), {40, 30}).size(), QSize(40, 26));
  EXPECT_TRUE(decoded(cut(8000, 6300)).isNull());
  EXPECT_TRUE(decoded(cut(300, 200).left(9)).isNull());
}

TEST_F(Decoding, TheCostCountsBytesPixelsAndScans) {
  const auto work = [&](const QByteArray& bytes) { return costOfPicture(write(bytes)).work - bytes.size(); };
  EXPECT_EQ(work(test::blinkingGif(30, 20)), 600);
  EXPECT_EQ(work(test::flatPng({30, 20})), 600);
  const QString deep = folder.filePath(QStringLiteral("deep.png"));
  QImage(30, 20, QImage::Format_RGBA64).save(deep);
  EXPECT_EQ(costOfPicture(deep).work - QFileInfo(deep).size(), 2400) << "8 bytes a pixel";
  EXPECT_EQ(work(test::scannedJpeg(48)), 64 + 3 * 64);
  EXPECT_EQ(work("no picture"), 0);
  EXPECT_FALSE(costOfPicture(write("no picture")).canBeDecoded);
}

TEST_F(Decoding, TextsAndProfilesOfAPngAreNeverUnpacked) {
  QImage image = noise({13, 7});
  image.setPixelColor(0, 0, Qt::transparent);
  QByteArray png;
  QBuffer buffer(&png);
  image.convertToFormat(QImage::Format_ARGB32).save(&buffer, "PNG");
  const qsizetype behindHead = 8 + 25;
  const QByteArray text = test::pngChunk("zTXt", QByteArray("Comment\0\0", 9) + test::packed(7'000'000, 'a'));
  const QByteArray gamma = test::pngChunk("gAMA", test::bigEndian(quint32{20000}));
  QByteArray bomb = png;
  bomb.insert(behindHead, gamma + text + text);

  QByteArray bare = bomb;
  dropPngExtras(bare);
  EXPECT_FALSE(bare.contains("zTXt"));
  EXPECT_FALSE(bare.contains("gAMA"));
  EXPECT_EQ(decoded(bomb), decoded(png));
  EXPECT_EQ(decoded(png).size(), QSize(13, 7));

  for (const qsizetype length : {0, 5, 8, 20, 33}) {
    QByteArray cut = png.left(length);
    dropPngExtras(cut);
    EXPECT_EQ(cut, png.left(length)) << length;
  }
  EXPECT_TRUE(decoded(png.left(70)).isNull());
}

TEST_F(Decoding, ThePngOfAnIconIsLookedAtLikeAnyOther) {
  const auto icon = [](const QByteArray& picture) {
    QByteArray head = QByteArray::fromHex("00000100010000000000010020000000000016000000");
    qToLittleEndian(static_cast<quint32>(picture.size()), head.data() + 14);
    return head + picture;
  };
  EXPECT_EQ(decoded(icon(test::flatPng({30, 20}))).size(), QSize(30, 20));
  EXPECT_TRUE(decoded(icon(test::flatPng({8000, 6300}))).isNull());
  EXPECT_TRUE(pngOfIcon(icon("a bitmap")).isEmpty());
  EXPECT_TRUE(pngOfIcon(icon(test::flatPng({30, 20})).left(21)).isEmpty());

  QByteArray written;
  QBuffer buffer(&written);
  noise({16, 16}).save(&buffer, "ICO");
  EXPECT_EQ(decoded(written).size(), QSize(16, 16));
  written[2] = 2;
  EXPECT_EQ(decoded(written).size(), QSize(16, 16)) << "a cursor";
}

TEST_F(Decoding, TheHeadDecidesAlone) {
  QByteArray bitmap;
  QBuffer buffer(&bitmap);
  noise({5, 5}).save(&buffer, "BMP");
  EXPECT_EQ(decoded(bitmap).size(), QSize(5, 5));
  // Formats that the library knows and the system doesn't.
  EXPECT_TRUE(decoded("P1\n2 2\n1 0\n0 1\n").isNull());
  EXPECT_TRUE(decoded("GIF8" + bitmap).isNull());
}

TEST_F(Decoding, AThumbnailIsNoLargerThanItsRoomAndItsPicture) {
  const auto thumbnail = [&](const QByteArray& bytes) {
    return decodeThumbnail(write(bytes), QSize(100, 60)).size();
  };
  EXPECT_EQ(thumbnail(jpeg(noise({400, 120}), false)), QSize(100, 30));
  EXPECT_EQ(thumbnail(test::flatPng({300, 6000})), QSize(3, 60));
  EXPECT_EQ(thumbnail(test::flatPng({6000, 10})), QSize(100, 1));
  EXPECT_EQ(thumbnail(test::flatPng({20, 10})), QSize(20, 10));
  EXPECT_TRUE(thumbnail(test::flatPng({8000, 6300})).isEmpty());
}

}  // namespace
}  // namespace veneerer
