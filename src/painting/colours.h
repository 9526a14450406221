// Colours at the border between the elements, which hold the numbers of the record files, and the screen.
#pragma once

#include <QColor>
#include <cstdint>

namespace veneerer {

/// The plain value, 0x00BBGGRR, of a colour that may name a system colour by a set top bit. An unknown system
/// colour counts as black. A plain value loses whatever stands above its 24 bits.
std::int32_t plainColour(std::int32_t colour);

/// The colour to paint with; always opaque.
QColor toQColor(std::int32_t colour);

/// The plain value, 0x00BBGGRR; alpha is dropped.
std::int32_t fromQColor(const QColor& colour);

}  // namespace veneerer
