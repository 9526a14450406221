#include "looks/pictures.h"

#include <stdexcept>

#include "images/pictureencoding.h"
#include "looks/colourtable.h"
#include "records/writefiles.h"

namespace veneerer::looks {

namespace {

constexpr int kJpegQuality = 90;
constexpr int kPngCompression = 0;  // of Qt's scale, where 0 is the smallest file

}  // namespace

Pictures::Pictures(const QString& folder, Disk& disk) : folder_(folder), disk_(disk) {
  const QString reason = disk.makeFolder(folder);
  if (!reason.isEmpty()) throw std::runtime_error((folder + QStringLiteral(": ") + reason).toStdString());
}

QString Pictures::add(const QString& name, const QImage& image) const {
  if (name.endsWith(QStringLiteral(".gif"))) return addGif(name, {indexed(image)}, {});
  const QByteArray format = name.section(u'.', -1).toLatin1();
  const int quality = format == "jpg" ? kJpegQuality : kPngCompression;
  // In 256 colours the file is a third in size.
  return write(name, encodePicture(format == "bmp" ? indexed(image) : image, format.constData(), quality));
}

QString Pictures::addGif(const QString& name, const std::vector<QImage>& frames,
                         const GifOptions& options) const {
  return write(name, gifFile(frames, options));
}

QString Pictures::write(const QString& name, const QByteArray& bytes) const {
  if (bytes.isEmpty()) throw std::runtime_error("cannot encode " + name.toStdString());
  writeFiles(disk_, folder_, {{name, bytes}});
  return QStringLiteral("\\images\\") + name;
}

}  // namespace veneerer::looks
