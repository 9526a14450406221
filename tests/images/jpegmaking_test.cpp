// What a JPEG file tells of its making, told by files whose making is known.
#include "images/jpegmaking.h"

#include <gtest/gtest.h>

#include <QImage>

#include "images/cjpeg.h"

namespace veneerer {
namespace {

QByteArray encoded(int quality, const std::array<int, 6>& sampling) {
  QImage image(40, 30, QImage::Format_RGB32);
  image.fill(Qt::darkCyan);
  cImage pixels;
  pixels.CopyPicture(image);
  cJpeg encoder;
  EXPECT_TRUE(encoder.setQuality(quality));
  EXPECT_TRUE(encoder.SetSamplingFrequencies(sampling[0], sampling[1], sampling[2], sampling[3], sampling[4],
                                             sampling[5]));
  encoder.SampleImage(pixels);
  return encoder.encode().bytes;
}

TEST(JpegMaking, IsReadFromTheTables) {
  // All tables of the lowest qualities hold nothing but the highest number.
  for (int quality = 5; quality <= 100; ++quality)
    EXPECT_EQ(jpegMaking(encoded(quality, {2, 2, 1, 1, 1, 1})).quality, quality);
  for (const std::array<int, 6>& sampling :
       {std::array<int, 6>{1, 1, 1, 1, 1, 1}, {2, 1, 1, 1, 1, 1}, {2, 2, 1, 1, 1, 1}, {4, 1, 1, 1, 1, 1}})
    EXPECT_EQ(jpegMaking(encoded(80, sampling)).sampling, sampling);
}

TEST(JpegMaking, OfADamagedFileIsAnythingAnEncoderTakes) {
  const QByteArray whole = encoded(30, {2, 2, 1, 1, 1, 1});
  for (qsizetype size = 0; size < whole.size(); ++size) {
    const JpegMaking making = jpegMaking(whole.left(size));
    EXPECT_TRUE(making.quality >= 1 && making.quality <= 100);
  }
  EXPECT_EQ(jpegMaking("no JPEG").quality, 90);
}

}  // namespace
}  // namespace veneerer
