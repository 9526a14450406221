#include "looks/pictures.h"

#include <QDir>
#include <QFile>
#include <stdexcept>

#include "looks/colourtable.h"

namespace veneerer::looks {

namespace {

constexpr int kJpegQuality = 90;
constexpr int kPngCompression = 0;  // of Qt's scale, where 0 is the smallest file

[[noreturn]] void fail(const QString& path) {
  throw std::runtime_error("cannot write " + path.toStdString());
}

QString reference(const QString& name) {
  return QStringLiteral("\\images\\") + name;
}

}  // namespace

Pictures::Pictures(const QString& folder) : folder_(folder) {
  if (!QDir().mkpath(folder)) fail(folder);
}

QString Pictures::add(const QString& name, const QImage& image) const {
  if (name.endsWith(QStringLiteral(".gif"))) return addGif(name, {indexed(image)}, {});
  const QString path = folder_ + u'/' + name;
  const int quality = name.endsWith(QStringLiteral(".jpg")) ? kJpegQuality : kPngCompression;
  // In 256 colours the file is a third in size.
  const QImage saved = name.endsWith(QStringLiteral(".bmp")) ? indexed(image) : image;
  if (!saved.save(path, nullptr, quality)) fail(path);
  return reference(name);
}

QString Pictures::addGif(const QString& name, const std::vector<QImage>& frames,
                         const GifOptions& options) const {
  QFile file(folder_ + u'/' + name);
  const QByteArray bytes = gifFile(frames, options);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) fail(file.fileName());
  return reference(name);
}

}  // namespace veneerer::looks
