// Colours as the operator types them.
#pragma once

#include <QString>
#include <cstdint>

#include "elements/colour.h"

namespace veneerer {

/// The number at the start of a text, or behind "&H" a hexadecimal one; 0 for any other text and for a number
/// beyond 32 bits. Eight hexadecimal digits give the negative numbers, which name system colours.
Colour colourNumber(QStringView text);

/// As colourNumber, and for "#" with exactly six digits the number of the three pairs in the order first,
/// third, second: "#112233" gives 0x113322. That is neither the order of a web colour nor that of the record
/// files; the colours of existing Skins rest on it.
Colour typedColour(QStringView text);

}  // namespace veneerer
