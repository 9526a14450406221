// All looks of the button on one picture, for the eye of who works on them.
#pragma once

#include <QImage>

namespace veneerer {

/// Every shape by every style and gradient mode, with captions; below them the states, the picture sizes and
/// alignments and the caption's effects. The scale is in device pixels per pixel, 1 to 4.
QImage buttonSheet(double scale = 1);

}  // namespace veneerer
