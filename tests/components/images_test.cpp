#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QPainter>
#include <QTemporaryDir>

#include "components/anigif.h"
#include "components/cimage.h"
#include "components/cjpeg.h"
#include "forms/form1.h"
#include "support/hostilepictures.h"
#include "support/pictures.h"

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

class Animation : public testing::Test {
protected:
  Animation() {
    form.Picture2[3].setContainer(form);
    form.ucAniGIF1[0].setContainer(form.Picture2[3]);
    form.ucAniGIF1[0].setPicture(picture("frame.gif", test::blinkingGif()));
  }

  Picture picture(const char* name, const QByteArray& bytes) {
    const QString path = folder.filePath(QString::fromLatin1(name));
    test::writeBytes(path, bytes);
    return pictures.load(path);
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
  form.ucAniGIF1[2].setContainer(form);
  form.ucAniGIF1[2].setPicture(picture("broken.gif", test::blinkingGif().left(30)));
  ucAniGIF player(form, [](const Element&) {});
  QCoreApplication::processEvents();
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(player.frame(form.ucAniGIF1[i]).isNull()) << i;
}

TEST_F(Animation, WhatIsTooLargeToBePlayedStandsStill) {
  const auto show = [&](int index, const char* name, const QByteArray& bytes) {
    form.ucAniGIF1[index].setContainer(form);
    form.ucAniGIF1[index].setPicture(picture(name, bytes));
  };
  show(1, "wide.gif", test::blinkingGif(2000, 1048));
  show(2, "wider.gif", test::blinkingGif(2000, 1049));
  // The blocks of a comment, which each frame's decoding walks over.
  QByteArray comment("\x21\xFE", 2);
  for (qint64 i = 0; i <= kMostPlayedBytes / 256; ++i) comment += '\xFF' + QByteArray(255, ' ');
  QByteArray heavy = test::blinkingGif();
  heavy.insert(heavy.size() - 1, comment + '\0');
  show(3, "heavy.gif", heavy);
  ucAniGIF player(form, [](const Element&) {});
  const auto plays = [&](int index) { return !player.frame(form.ucAniGIF1[index]).isNull(); };
  EXPECT_TRUE(plays(0) && plays(1));
  EXPECT_FALSE(plays(2) || plays(3));
  EXPECT_EQ(form.ucAniGIF1[2].picture().image().size(), QSize(2000, 1049)) << "its first frame shows";
}

TEST_F(Animation, WhatPlaysAtOneTimeIsBoundedToo) {
  for (int i = 1; i <= 4; ++i) {
    form.ucAniGIF1[i].setContainer(form);
    const QByteArray name = QByteArray::number(i) + ".gif";
    form.ucAniGIF1[i].setPicture(picture(name.constData(), test::blinkingGif(2000, 1000)));
  }
  ucAniGIF player(form, [](const Element&) {});
  const auto playing = [&] {
    QList<int> indices;
    for (int i = 0; i <= 4; ++i)
      if (!player.frame(form.ucAniGIF1[i]).isNull()) indices.append(i);
    return indices;
  };
  EXPECT_EQ(playing(), (QList<int>{0, 1, 2}));
  form.ucAniGIF1[1].setVisible(false);
  form.ucAniGIF1[3].setPicture(picture("5.gif", test::blinkingGif(2000, 1000)));
  EXPECT_TRUE(waitFor([&] { return playing() == QList<int>{0, 2, 3}; })) << "what goes makes room";
}

}  // namespace
}  // namespace veneerer
