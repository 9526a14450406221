// A new Skin that is another one in other colours.
#pragma once

#include "exchange/longwork.h"
#include "files/foldertree.h"
#include "forms/state.h"
#include "platform/platform.h"
#include "recolouring/colourmap.h"

namespace veneerer {

struct Recolouring {
  ColourMap map;
  bool withPictures = false;  ///< the pictures are turned too; what is replaced is replaced in files alone
};

/// What a recoloured copy has not.
struct NotRecoloured {
  QList<LeftOut> leftOut;   ///< isn't taken along
  QList<LeftOut> pictures;  ///< are copied as they are
};

/// Makes the folder `to` of the Skin in the folder `from`, which is in hand, as copySkin() does: the stored
/// colours recoloured, those of its cover files included, all other bytes as a copy has them. Nothing of the
/// state changes. Throws ExchangeError and GivenUp.
NotRecoloured copyRecoloured(State& state, const Platform& platform, const QString& from, const QString& to,
                             const Recolouring& recolouring, const GoOn& goOn = {});

}  // namespace veneerer
