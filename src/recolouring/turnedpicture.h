// A picture file in turned colours, in the format that its content has.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "exchange/longwork.h"
#include "recolouring/colourturn.h"

namespace veneerer {

struct TurnedPicture {
  std::optional<QByteArray> bytes;  ///< nothing where the file is to stay as it is
  QString fault;                    ///< why it can't be turned; empty for one without a colour to turn
};

/// Bitmaps, GIF and PNG files keep everything but their colours: size, palette, alpha, frames and their
/// times. A JPEG file keeps its quality and its sampling. A file that is no picture isn't turned; one that
/// only its name calls a picture has a fault. step is called now and then.
TurnedPicture turnedPicture(const QString& path, const ColourTurn& turn, const Step& step);

}  // namespace veneerer
