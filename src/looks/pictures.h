// The folder of a Skin's pictures.
#pragma once

#include <QImage>
#include <QString>
#include <vector>

#include "files/disk.h"
#include "looks/gifwriter.h"

namespace veneerer::looks {

/// Writes pictures into a folder, in the format that the name ends in. Each call answers the reference that
/// record files take, "\images\" and the name, and throws std::runtime_error when the file can't be written.
class Pictures {
public:
  /// Makes the folder. Throws std::runtime_error when that fails. The disk must outlive this object.
  Pictures(const QString& folder, Disk& disk);

  QString add(const QString& name, const QImage& image) const;
  QString addGif(const QString& name, const std::vector<QImage>& frames, const GifOptions& options) const;

private:
  QString write(const QString& name, const QByteArray& bytes) const;

  QString folder_;
  Disk& disk_;
};

}  // namespace veneerer::looks
