// Writes GIF89a files, still or animated: the picture library reads that format but doesn't write it.
#pragma once

#include <QByteArray>
#include <QImage>
#include <vector>

namespace veneerer::looks {

struct GifOptions {
  int hundredths = 0;    ///< how long each frame is shown, 1/100 seconds
  int transparent = -1;  ///< the colour table's entry that lets what is behind show, -1 for none
};

/// The file of these frames, which repeat without end when there are several. All have one size, the format
/// Indexed8 and the same colour table of 2 to 256 entries.
QByteArray gifFile(const std::vector<QImage>& frames, const GifOptions& options = {});

}  // namespace veneerer::looks
