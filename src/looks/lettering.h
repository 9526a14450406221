// Lettering in pictures: the logo in strokes of its own, captions and titles in the Skin's font.
#pragma once

#include <QPainter>
#include <QString>
#include <QStringList>

namespace veneerer::looks {

/// Draws capitals, digits and a few signs in one line within the rectangle, as large as fits, with the
/// painter's pen; unknown characters are left blank. The alignment is Qt::AlignLeft or Qt::AlignHCenter.
void drawLettering(QPainter& painter, const QRectF& rect, const QString& text, Qt::Alignment alignment);

struct LetterStyle {
  QString font;
  double pixels;                               ///< the letters' size; smaller where the lines wouldn't fit
  Qt::AlignmentFlag align = Qt::AlignHCenter;  ///< or Qt::AlignLeft
};

/// Bold lines one below the other, in the middle of the rectangle's height.
void drawLines(QPainter& painter, const QRectF& rect, const QStringList& lines, const LetterStyle& style,
               const QColor& ink);

}  // namespace veneerer::looks
