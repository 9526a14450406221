#include "images/fastpng.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QRandomGenerator>

#include "images/pictureencoding.h"

namespace veneerer {
namespace {

/// Of everything that the filters differ on: flat, sloping both ways, repeated, and noise.
QImage varied(QSize size) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::darkCyan);
  QPainter painter(&image);
  QLinearGradient slope(0, 0, size.width(), size.height() / 2.0);
  slope.setColorAt(0, Qt::red);
  slope.setColorAt(1, Qt::green);
  painter.fillRect(0, size.height() / 4, size.width(), size.height() / 2, slope);
  painter.drawEllipse(QRect(QPoint(), size).adjusted(3, 3, -3, -3));
  QRandomGenerator random(7);
  for (int y = size.height() * 5 / 6; y < size.height(); ++y)
    for (int x = 0; x < size.width(); x += 2) image.setPixel(x, y, random.generate());
  return image;
}

TEST(FastPng, IsTheToolkitsFile) {
  // The last one is above a block of the filters' lines and no multiple of anything.
  for (const QSize size : {QSize(1, 40'000), QSize(40'000, 1), QSize(2, 9'000), QSize(20, 20),
                           QSize(333, 257), QSize(1923, 411)}) {
    SCOPED_TRACE(testing::Message() << size.width() << " x " << size.height());
    const QImage image = varied(size);
    const QByteArray png = fastPng(image);
    EXPECT_TRUE(QImage::fromData(png, "PNG") == image);
    EXPECT_TRUE(png == encodePicture(image, "PNG", kFastPng)) << "libpng chooses its filters otherwise";
  }
}

TEST(FastPng, KeepsWhatOnlyTheToolkitCanWrite) {
  QImage clear(300, 300, QImage::Format_ARGB32);
  clear.fill(QColor(10, 20, 30, 40));
  EXPECT_TRUE(QImage::fromData(fastPng(clear), "PNG") == clear);
  QImage told = varied({300, 300});
  told.setText("Title", "Skin");
  EXPECT_EQ(QImage::fromData(fastPng(told), "PNG").text("Title"), "Skin");
  EXPECT_TRUE(fastPng(QImage()).isEmpty());
}

}  // namespace
}  // namespace veneerer
