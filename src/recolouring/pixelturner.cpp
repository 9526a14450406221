#include "recolouring/pixelturner.h"

namespace veneerer {

namespace {

constexpr int kRowsOfStep = 64;

}  // namespace

QRgb PixelTurner::turned(QRgb colour) {
  const QRgb opaque = colour | 0xFF000000U;
  Known& known = known_[(opaque * 2654435761U) >> 20];
  if (known.colour != opaque) known = {opaque, veneerer::turned(opaque, turn_)};
  return (known.turned & 0x00FFFFFFU) | (colour & 0xFF000000U);
}

bool PixelTurner::turn(QImage& image, const Step& step) {
  if (image.colorCount() > 0) return turnTable(image);
  const QImage::Format format = image.format();
  image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  const bool isOther = turnPixels(image, step);
  if (image.format() != format) image.convertTo(format);
  return isOther;
}

bool PixelTurner::turnTable(QImage& image) {
  bool isOther = false;
  for (int i = 0; i < image.colorCount(); ++i) {
    const QRgb colour = image.color(i);
    image.setColor(i, turned(colour));
    isOther |= image.color(i) != colour;
  }
  return isOther;
}

bool PixelTurner::turnPixels(QImage& image, const Step& step) {
  bool isOther = false;
  for (int y = 0; y < image.height(); ++y) {
    if (y % kRowsOfStep == 0) step();
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const QRgb colour = turned(line[x]);
      isOther |= colour != line[x];
      line[x] = colour;
    }
  }
  return isOther;
}

bool PixelTurner::turnEntries(QByteArray& bytes, qsizetype from, qsizetype count, qsizetype entry,
                              Order order) {
  bool isOther = false;
  const bool isRedFirst = order == Order::RedFirst;
  for (qsizetype i = 0; i < count && from + 3 <= bytes.size(); ++i, from += entry) {
    auto* parts = reinterpret_cast<uchar*>(bytes.data() + from);
    const QRgb colour = isRedFirst ? qRgb(parts[0], parts[1], parts[2]) : qRgb(parts[2], parts[1], parts[0]);
    const QRgb made = turned(colour);
    parts[isRedFirst ? 0 : 2] = static_cast<uchar>(qRed(made));
    parts[1] = static_cast<uchar>(qGreen(made));
    parts[isRedFirst ? 2 : 0] = static_cast<uchar>(qBlue(made));
    isOther |= made != colour;
  }
  return isOther;
}

}  // namespace veneerer
