#include "recolouring/colourmap.h"

namespace veneerer {

Colour ColourMap::of(Colour colour) const {
  if (colour.isSystem()) return colour;
  const Colour plain = colour.plain();
  const auto given = replaced.constFind(plain.number());
  Colour made = plain;
  if (given != replaced.constEnd())
    made = *given;
  else if (!turn.isNothing())
    made = Colour::of(QColor::fromRgb(turned(plain.toQColor().rgb(), turn)));
  return made == plain ? colour : made;
}

}  // namespace veneerer
