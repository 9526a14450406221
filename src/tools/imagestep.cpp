#include "tools/imagestep.h"

#include <QSaveFile>

#include "images/cimage.h"
#include "images/cjpeg.h"
#include "images/picture.h"

namespace veneerer {

namespace {

constexpr int kQuality = 90;

JpegResult encode(const cImage& image) {
  cJpeg jpeg;
  jpeg.setQuality(kQuality);
  jpeg.SetSamplingFrequencies(2, 2, 1, 1, 1, 1);
  jpeg.SampleImage(image);
  return jpeg.encode();
}

QString replaceFile(const QString& path, const QByteArray& bytes) {
  QSaveFile file(path);
  const bool isOpen = file.open(QIODevice::WriteOnly);
  if (isOpen) file.write(bytes);
  if (isOpen && file.commit()) return {};
  return QStringLiteral("can't be written (%1)").arg(file.errorString());
}

QString resample(const QString& path, QSize size) {
  // A store of its own: the job runs beside others, and the file may have changed since the last size.
  PictureStore store;
  const Picture picture = store.load(path);
  cImage source;
  if (!source.CopyPicture(picture.image())) return QStringLiteral("can't be decoded");
  const cImage target = source.stretched(size);
  if (target.isEmpty())
    return QStringLiteral("can't have %1 by %2 pixels").arg(size.width()).arg(size.height());
  const JpegResult jpeg = encode(target);
  return jpeg.isOk() ? replaceFile(path, jpeg.bytes) : jpeg.error;
}

}  // namespace

QString resampleFile(const ImageJob& job) {
  for (const QSize size : job.sizes) {
    const QString error = resample(job.path, size);
    if (!error.isEmpty()) return error;
  }
  return {};
}

}  // namespace veneerer
