// Picture files of a few pixels, of every format and of each way that it packs them.
#pragma once

#include <QByteArray>
#include <QList>

namespace veneerer::fuzz {

QList<QByteArray> smallPictures();

/// What picture files are made of.
QList<QByteArray> pictureWords();

}  // namespace veneerer::fuzz
