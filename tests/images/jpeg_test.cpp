#include <gtest/gtest.h>

#include <QPainter>

#include "images/cimage.h"
#include "images/cjpeg.h"

namespace veneerer {
namespace {

cImage bufferOf(const QImage& image) {
  cImage buffer;
  buffer.CopyPicture(image);
  return buffer;
}

QImage gradient(QSize size) {
  QImage image(size, QImage::Format_RGB32);
  for (int y = 0; y < size.height(); ++y)
    for (int x = 0; x < size.width(); ++x)
      image.setPixel(x, y, qRgb(255 * x / size.width(), 255 * y / size.height(), 128));
  return image;
}

TEST(ImageBuffer, TakesACopyWithoutTransparency) {
  QImage source(2, 1, QImage::Format_ARGB32);
  source.setPixel(0, 0, qRgba(255, 0, 0, 255));
  source.setPixel(1, 0, qRgba(255, 0, 0, 0));
  const cImage buffer = bufferOf(source);
  EXPECT_EQ(buffer.sample(0, 0), qRgb(255, 0, 0));
  EXPECT_EQ(buffer.row(0)[1], qRgb(0, 0, 0));
  cImage empty;
  EXPECT_FALSE(empty.CopyPicture(QImage()));
  EXPECT_TRUE(empty.isEmpty());
}

TEST(ImageBuffer, ASmallerPictureIsTheMeanOfTheLarger) {
  QImage stripes(400, 400, QImage::Format_RGB32);
  for (int y = 0; y < 400; ++y)
    for (int x = 0; x < 400; ++x) stripes.setPixel(x, y, x % 2 ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
  const cImage small = bufferOf(stripes).stretched(QSize(100, 50));
  ASSERT_EQ(small.image().size(), QSize(100, 50));
  EXPECT_NEAR(qRed(small.sample(50, 25)), 127, 3);
  EXPECT_EQ(bufferOf(stripes).stretched(QSize(800, 800)).width(), 800);
}

TEST(ImageBuffer, RefusesAbsurdSizes) {
  const cImage buffer = bufferOf(gradient(QSize(8, 8)));
  EXPECT_TRUE(buffer.stretched(QSize(0, 10)).isEmpty());
  EXPECT_TRUE(buffer.stretched(QSize(-4, 10)).isEmpty());
  EXPECT_TRUE(buffer.stretched(QSize(1'000'000, 1'000'000)).isEmpty());
  EXPECT_TRUE(cImage().stretched(QSize(10, 10)).isEmpty());
}

// The start-of-frame segment: its marker, and the sampling byte of each component.
struct FrameHeader {
  int marker = 0;
  QList<int> sampling;
};

FrameHeader frameHeader(const QByteArray& jpeg) {
  const auto byte = [&](qsizetype at) { return static_cast<int>(static_cast<unsigned char>(jpeg.at(at))); };
  for (qsizetype at = 2; at + 4 < jpeg.size(); at += 2 + byte(at + 2) * 256 + byte(at + 3)) {
    if (byte(at + 1) < 0xC0 || byte(at + 1) > 0xC2) continue;
    FrameHeader header{byte(at + 1), {}};
    for (int c = 0; c < byte(at + 9); ++c) header.sampling.append(byte(at + 11 + 3 * c));
    return header;
  }
  return {};
}

TEST(Jpeg, WritesABaselineFileWithTheAskedSampling) {
  const QImage source = gradient(QSize(101, 63));
  cJpeg encoder;
  EXPECT_EQ(encoder.quality(), 90);
  encoder.SampleImage(bufferOf(source));
  const JpegResult result = encoder.encode();
  ASSERT_TRUE(result.isOk()) << result.error.toStdString();
  EXPECT_EQ(frameHeader(result.bytes).marker, 0xC0);
  EXPECT_EQ(frameHeader(result.bytes).sampling, (QList<int>{0x22, 0x11, 0x11}));

  const QImage read = QImage::fromData(result.bytes, "JPG");
  ASSERT_EQ(read.size(), source.size());
  const QColor was = source.pixelColor(70, 20);
  const QColor is = read.pixelColor(70, 20);
  EXPECT_NEAR(is.red(), was.red(), 8);
  EXPECT_NEAR(is.green(), was.green(), 8);
  EXPECT_NEAR(is.blue(), was.blue(), 8);
}

TEST(Jpeg, QualityAndSamplingAreHeldWithinTheFormat) {
  cJpeg encoder;
  encoder.SampleImage(bufferOf(gradient(QSize(200, 200))));
  const qsizetype usual = encoder.encode().bytes.size();
  EXPECT_FALSE(encoder.setQuality(0));
  EXPECT_FALSE(encoder.setQuality(101));
  EXPECT_EQ(encoder.encode().bytes.size(), usual);
  EXPECT_TRUE(encoder.setQuality(100));
  EXPECT_GT(encoder.encode().bytes.size(), usual);
  EXPECT_TRUE(encoder.setQuality(1));
  EXPECT_LT(encoder.encode().bytes.size(), usual);

  for (const int wrong : {0, 5}) {
    EXPECT_FALSE(encoder.SetSamplingFrequencies(wrong, 1, 1, 1, 1, 1));
    EXPECT_FALSE(encoder.SetSamplingFrequencies(1, 1, 1, 1, 1, wrong));
  }
  EXPECT_FALSE(encoder.SetSamplingFrequencies(2, 2, 2, 2, 1, 3)) << "11 blocks in all";
  EXPECT_EQ(frameHeader(encoder.encode().bytes).sampling, (QList<int>{0x22, 0x11, 0x11}));
  EXPECT_TRUE(encoder.SetSamplingFrequencies(2, 2, 2, 2, 1, 2));
  EXPECT_EQ(frameHeader(encoder.encode().bytes).sampling, (QList<int>{0x22, 0x22, 0x12}));
  EXPECT_TRUE(encoder.SetSamplingFrequencies(4, 1, 2, 1, 1, 1));
  EXPECT_EQ(frameHeader(encoder.encode().bytes).sampling, (QList<int>{0x41, 0x21, 0x11}));
}

TEST(Jpeg, FailuresAreValues) {
  EXPECT_FALSE(cJpeg().encode().isOk());
  cJpeg encoder;
  encoder.SampleImage(bufferOf(gradient(QSize(70'000, 1))));
  const JpegResult tooWide = encoder.encode();
  EXPECT_FALSE(tooWide.isOk());
  EXPECT_TRUE(tooWide.bytes.isEmpty());
}
}  // namespace
}  // namespace veneerer
