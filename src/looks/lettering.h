// Lettering in strokes. Skins must come out the same on every machine, so no installed font is used.
#pragma once

#include <QPainter>
#include <QString>

namespace veneerer::looks {

/// Draws capitals, digits and a few signs in one line within the rectangle, as large as fits, with the
/// painter's pen; unknown characters are left blank. The alignment is Qt::AlignLeft or Qt::AlignHCenter.
void drawLettering(QPainter& painter, const QRectF& rect, const QString& text, Qt::Alignment alignment);

}  // namespace veneerer::looks
