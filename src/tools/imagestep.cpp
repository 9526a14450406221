#include "tools/imagestep.h"

#include "files/replacefiles.h"
#include "images/cimage.h"
#include "images/cjpeg.h"
#include "images/picture.h"
#include "tools/texts.h"

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

QString cannotBeWritten(const WriteFault& fault) {
  return ToolTexts::tr("can't be written (%1)").arg(fault.reason);
}

QString replaceFile(const ImageJob& job, const QByteArray& bytes, Disk& disk) {
  FileReplacement replacement(disk, job.skin, {{job.path, bytes}});
  if (replacement.refusal()) return cannotBeWritten(*replacement.refusal());
  try {
    replacement.run();
    return {};
  } catch (const ReplaceError& error) {
    return cannotBeWritten(error.fault());
  }
}

QString resample(const ImageJob& job, QSize size, Disk& disk) {
  // A store of its own: the job runs beside others, and the file may have changed since the last size.
  PictureStore store;
  const Picture picture = store.load(job.path);
  cImage source;
  if (!source.CopyPicture(picture.image())) return ToolTexts::tr("can't be decoded");
  const cImage target = source.stretched(size);
  if (target.isEmpty())
    return ToolTexts::tr("can't have %1 by %2 pixels").arg(size.width()).arg(size.height());
  const JpegResult jpeg = encode(target);
  return jpeg.isOk() ? replaceFile(job, jpeg.bytes, disk) : jpeg.error;
}

}  // namespace

QString resampleFile(const ImageJob& job, Disk& disk) {
  for (const QSize size : job.sizes) {
    const QString error = resample(job, size, disk);
    if (!error.isEmpty()) return error;
  }
  return {};
}

}  // namespace veneerer
