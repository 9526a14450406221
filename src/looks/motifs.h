// The patterns that run through the pictures of a Skin.
#pragma once

#include <QPainter>

#include "looks/look.h"

namespace veneerer::looks {

/// Paints the pattern over the area, in that ink with its alpha; nowhere are more than two layers of it.
void paintMotif(QPainter& painter, const QRectF& area, Motif motif, const QColor& ink);

}  // namespace veneerer::looks
