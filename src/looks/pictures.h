// The folder of a Skin's pictures.
#pragma once

#include <QImage>
#include <QString>
#include <vector>

#include "looks/gifwriter.h"

namespace veneerer::looks {

/// Writes pictures into a folder, in the format that the name ends in. Each call answers the reference that
/// record files take, "\images\" and the name, and throws std::runtime_error when the file can't be written.
class Pictures {
public:
  explicit Pictures(const QString& folder);

  QString add(const QString& name, const QImage& image) const;
  QString addGif(const QString& name, const std::vector<QImage>& frames, const GifOptions& options) const;

private:
  QString folder_;
};

}  // namespace veneerer::looks
