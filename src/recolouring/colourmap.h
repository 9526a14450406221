// What becomes of the colours of a Skin.
#pragma once

#include <QHash>

#include "elements/colour.h"
#include "recolouring/colourturn.h"

namespace veneerer {

struct ColourMap {
  /// The plain colours that are given in the place of others, by the numbers of these. They aren't turned.
  QHash<std::int32_t, Colour> replaced;
  ColourTurn turn;  ///< of all others

  bool isNothing() const { return replaced.isEmpty() && turn.isNothing(); }

  /// A system colour stays, and so does whatever stands above the 24 bits of one that looks no different.
  Colour of(Colour colour) const;
};

}  // namespace veneerer
