// The rescale's work on one picture file.
#pragma once

#include <QSize>
#include <QString>
#include <QStringList>
#include <vector>

#include "files/disk.h"

namespace veneerer {

/// The targets that share one file, in their order: the file takes each size in turn.
struct ImageJob {
  QString skin;  ///< the Skin's folder, in which alone a file is replaced
  QString path;
  QString reference;         ///< what the Skin calls the file
  std::vector<QSize> sizes;  ///< pixels
};

/// Resamples the file to each size and replaces it by a JPEG of the same name. The file is replaced only by a
/// complete new one; nothing else is left on the disk. Returns in a few words why that failed ("can't be
/// decoded"), empty when it is done. Safe to run beside other jobs.
QString resampleFile(const ImageJob& job, Disk& disk);

}  // namespace veneerer
