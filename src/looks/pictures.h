// The pictures of a Skin as files in memory.
#pragma once

#include <QImage>
#include <QString>
#include <vector>

#include "files/replacefiles.h"
#include "looks/gifwriter.h"

namespace veneerer::looks {

/// Packs pictures in the format that their name ends in. Each call answers the reference that record files
/// take, "\\images\\" and the name, and throws std::runtime_error when the picture can't be packed.
class Pictures {
public:
  QString add(const QString& name, const QImage& image);
  QString addGif(const QString& name, const std::vector<QImage>& frames, const GifOptions& options);

  /// Those that were added, by their path in the Skin's folder.
  std::vector<NewFile> files;

private:
  QString keep(const QString& name, const QByteArray& bytes);
};

}  // namespace veneerer::looks
