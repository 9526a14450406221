// Where a button's caption and its small picture go.
#pragma once

#include <QRectF>
#include <QString>

#include "elements/button.h"

namespace veneerer {

/// The part of the face that its contents may take: within the edges, clear of sloping sides.
QRectF contentsRect(const Button& button, const QRectF& face);

/// The size of a picture that stands beside the caption: the largest of its proportions in a square of 16, 24
/// or 32 pixels for PictureSize 0, 1 and 2, but never larger than the contents.
QSizeF smallPictureSize(int pictureSize, QSize picture, QSizeF contents);

/// The room that is left for the caption beside a small picture of that size (empty for none).
QRectF captionRoom(const Button& button, const QRectF& contents, QSizeF picture);

struct ButtonPlaces {
  QPointF picture;  ///< top left
  QPointF caption;  ///< top left of the laid out text, whose lines are as wide as their room
};

/// Where both go, given the size of the text as it was laid out in its room.
ButtonPlaces placeContents(const Button& button, const QRectF& contents, QSizeF picture, const QRectF& room,
                           QSizeF text);

/// 0 left, 1 right, 2 centre; beside a picture at the top or bottom always centre.
int captionAlignment(const Button& button);

/// The caption as it is drawn: "||" is a line break, "&" stands for itself.
QString drawnCaption(const QString& caption);

}  // namespace veneerer
