// Where the windows stand when they come up.
#pragma once

#include <QList>
#include <QRect>

namespace veneerer {

/// Places for windows beside the canvas, without covering it and without covering each other as far as the
/// screen has room; those without room of their own lie over another at the screen's right edge. The canvas
/// stands in the top left corner of the available area. Sizes include the windows' own frames.
QList<QRect> placeBeside(const QRect& available, QSize canvas, const QList<QSize>& windows);

}  // namespace veneerer
