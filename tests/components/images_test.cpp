#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>

#include "components/anigif.h"
#include "components/cimage.h"
#include "components/cjpeg.h"
#include "forms/form1.h"

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
  EXPECT_TRUE(encoder.setQuality(5));
  EXPECT_LT(encoder.encode().bytes.size(), usual);

  EXPECT_FALSE(encoder.SetSamplingFrequencies(0, 1, 1, 1, 1, 1));
  EXPECT_FALSE(encoder.SetSamplingFrequencies(4, 4, 1, 1, 1, 1));
  EXPECT_TRUE(encoder.SetSamplingFrequencies(2, 1, 1, 1, 1, 1));
  EXPECT_EQ(frameHeader(encoder.encode().bytes).sampling, (QList<int>{0x21, 0x11, 0x11}));
}

TEST(Jpeg, FailuresAreValues) {
  EXPECT_FALSE(cJpeg().encode().isOk());
  cJpeg encoder;
  encoder.SampleImage(bufferOf(gradient(QSize(70'000, 1))));
  const JpegResult tooWide = encoder.encode();
  EXPECT_FALSE(tooWide.isOk());
  EXPECT_TRUE(tooWide.bytes.isEmpty());
}

// Two frames of one pixel, red and blue, 20 ms each, repeated for ever.
QByteArray blinkingGif() {
  const QByteArray control("\x21\xF9\x04\x00\x02\x00\x00\x00", 8);
  const QByteArray descriptor("\x2C\x00\x00\x00\x00\x01\x00\x01\x00\x00", 10);
  return QByteArray("GIF89a\x01\x00\x01\x00\x80\x00\x00\xFF\x00\x00\x00\x00\xFF", 19) +
         QByteArray("\x21\xFF\x0BNETSCAPE2.0\x03\x01\x00\x00\x00", 19) + control + descriptor +
         QByteArray("\x02\x02\x44\x01\x00", 5) + control + descriptor +
         QByteArray("\x02\x02\x4C\x01\x00", 5) + ';';
}

class Animation : public testing::Test {
protected:
  Animation() {
    const QString path = folder.filePath(QStringLiteral("frame.gif"));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) file.write(blinkingGif());
    file.close();
    form.Picture2[3].setContainer(form);
    form.ucAniGIF1[0].setContainer(form.Picture2[3]);
    form.ucAniGIF1[0].setPicture(pictures.load(path));
  }

  template <class Condition>
  static bool waitFor(Condition condition) {
    QDeadlineTimer deadline(10'000);
    while (!condition() && !deadline.hasExpired()) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return condition();
  }

  QTemporaryDir folder;
  PictureStore pictures;
  ChangeNotices notices;
  Form1 form{notices};
};

TEST_F(Animation, PlaysWhileItIsShown) {
  int repaints = 0;
  ucAniGIF player(form, [&](const Element& element) { repaints += &element == &form.ucAniGIF1[0]; });
  const Element& element = form.ucAniGIF1[0];
  const auto shows = [&](QColor colour) {
    const QImage frame = player.frame(element);
    return !frame.isNull() && frame.pixelColor(0, 0) == colour;
  };
  EXPECT_TRUE(waitFor([&] { return shows(Qt::blue); }));
  EXPECT_TRUE(waitFor([&] { return shows(Qt::red); }));
  EXPECT_GE(repaints, 2);

  form.Picture2[3].setVisible(false);
  EXPECT_TRUE(waitFor([&] { return player.frame(element).isNull(); }));
  form.Picture2[3].setVisible(true);
  EXPECT_TRUE(waitFor([&] { return shows(Qt::blue); }));
  form.ucAniGIF1[0].setPicture(Picture());
  EXPECT_TRUE(player.frame(element).isNull());
}

TEST_F(Animation, PicturesThatDoNotMoveAreLeftAlone) {
  form.ucAniGIF1[0].setPicture(Picture::drawn(gradient(QSize(4, 4))));
  form.ucAniGIF1[1].setContainer(form);
  const QString still = folder.filePath(QStringLiteral("still.bmp"));
  gradient(QSize(4, 4)).save(still);
  form.ucAniGIF1[1].setPicture(pictures.load(still));
  const QString broken = folder.filePath(QStringLiteral("broken.gif"));
  QFile file(broken);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(blinkingGif().left(30));
  file.close();
  form.ucAniGIF1[2].setContainer(form);
  form.ucAniGIF1[2].setPicture(pictures.load(broken));
  ucAniGIF player(form, [](const Element&) {});
  QCoreApplication::processEvents();
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(player.frame(form.ucAniGIF1[i]).isNull()) << i;
}

}  // namespace
}  // namespace veneerer
