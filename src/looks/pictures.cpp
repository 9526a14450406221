#include "looks/pictures.h"

#include <stdexcept>

#include "images/pictureencoding.h"
#include "looks/colourtable.h"

namespace veneerer::looks {

namespace {

constexpr int kJpegQuality = 90;
constexpr int kPngQuality = 10;  // of Qt's scale, where 0 is the smallest file and 100 the quickest to make

}  // namespace

QString Pictures::add(const QString& name, const QImage& image) {
  if (name.endsWith(QStringLiteral(".gif"))) return addGif(name, {indexed(image)}, {});
  const QByteArray format = name.section(u'.', -1).toLatin1();
  const int quality = format == "jpg" ? kJpegQuality : kPngQuality;
  // In 256 colours the file is a third in size.
  return keep(name, encodePicture(format == "bmp" ? indexed(image) : image, format.constData(), quality));
}

QString Pictures::addGif(const QString& name, const std::vector<QImage>& frames, const GifOptions& options) {
  return keep(name, gifFile(frames, options));
}

QString Pictures::keep(const QString& name, const QByteArray& bytes) {
  if (bytes.isEmpty()) throw std::runtime_error("cannot encode " + name.toStdString());
  files.push_back({QStringLiteral("images/") + name, bytes});
  return QStringLiteral("\\images\\") + name;
}

}  // namespace veneerer::looks
