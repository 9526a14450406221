// Makes a Skin by its look: composes the canvas, draws the pictures, and composes the record files as a save
// does.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "exchange/longwork.h"
#include "files/disk.h"
#include "files/replacefiles.h"
#include "looks/look.h"

namespace veneerer::looks {

/// What somebody wants a Skin to be.
struct Wish {
  const Look* look = nullptr;
  QSize size;  ///< pixels, without a fault; see faultOfSize()
  Colours colours;
  QString font;
};

/// The look as it comes.
Wish defaultsOf(const Look& look);

struct MadeSkin {
  std::vector<NewFile> files;  ///< of its folder
  QStringList notes;           ///< what had to be otherwise than wished, a sentence each
};

/// Draws all of it in memory. The same wish gives the same bytes. Throws GivenUp.
MadeSkin drawSkin(const Wish& wish, const GoOn& goOn = {});

/// Draws it and makes the folder `to`, which must not be there, whole or not at all. Returns the notes.
/// Throws ExchangeError and GivenUp.
QStringList makeSkin(Disk& disk, const QString& to, const Wish& wish, const GoOn& goOn = {});

/// The picture of stars that the program takes when a Skin has none of its own, a PNG file.
QByteArray programStars();

}  // namespace veneerer::looks
