#include "painting/buttonlayout.h"

#include <algorithm>

#include "painting/buttonshape.h"

namespace veneerer {

namespace {

// All in pixels.
constexpr double kEdge = 4;            // between a face's left and right edge and its contents
constexpr double kLevel = 2;           // the same at the top and bottom
constexpr double kGap = 4;             // between picture and caption side by side
constexpr double kStackedGap = 1;      // the same above each other
constexpr int kLongestCaption = 2048;  // characters
constexpr int kPictureSides[] = {16, 24, 32};

PictureAlign alignOf(const Button& button) {
  const int align = button.as<std::int32_t>(Property::PictureAlign);
  const bool isKnown = align >= 0 && align <= static_cast<int>(PictureAlign::BottomCenter);
  return isKnown ? static_cast<PictureAlign>(align) : PictureAlign::LeftEdge;
}

bool isStacked(PictureAlign align) {
  return align == PictureAlign::TopCenter || align == PictureAlign::BottomCenter;
}

bool isBesideCaption(PictureAlign align) {
  return align == PictureAlign::LeftOfCaption || align == PictureAlign::RightOfCaption;
}

bool isOnTheLeft(PictureAlign align) {
  return align == PictureAlign::LeftEdge || align == PictureAlign::LeftOfCaption;
}

double middle(double start, double room, double size) {
  return start + (room - size) / 2;
}

// The left end of the text's widest line in its room.
double textLeft(int alignment, const QRectF& room, double width) {
  if (alignment == 0) return room.left();
  return alignment == 1 ? room.right() - width : middle(room.left(), room.width(), width);
}

// Picture and caption above each other, as one block in the middle.
ButtonPlaces stack(PictureAlign align, const QRectF& contents, QSizeF picture, const QRectF& room,
                   QSizeF text) {
  const double gap = text.height() > 0 ? kStackedGap : 0;
  const double top = middle(contents.top(), contents.height(), picture.height() + gap + text.height());
  const bool isPictureFirst = align == PictureAlign::TopCenter;
  const double left = middle(contents.left(), contents.width(), picture.width());
  return {QPointF(left, isPictureFirst ? top : top + text.height() + gap),
          QPointF(room.left(), isPictureFirst ? top + picture.height() + gap : top)};
}

double pictureLeft(PictureAlign align, const QRectF& contents, double picture, double textStart,
                   double textWidth) {
  switch (align) {
    case PictureAlign::LeftOfCaption:
      return std::max(contents.left(), textStart - kGap - picture);
    case PictureAlign::RightOfCaption:
      return std::min(contents.right() - picture, textStart + textWidth + kGap);
    case PictureAlign::RightEdge:
      return contents.right() - picture;
    default:
      return contents.left();
  }
}

}  // namespace

QRectF contentsRect(const Button& button, const QRectF& face) {
  const SideRoom slopes = slopesOf(button.buttonShape(), face.size());
  const QRectF inner = face.adjusted(kEdge + slopes.left, kLevel, -kEdge - slopes.right, -kLevel);
  return inner.width() > 0 && inner.height() > 0 ? inner : face;
}

QSizeF smallPictureSize(int pictureSize, QSize picture, QSizeF contents) {
  const int side = kPictureSides[std::clamp(pictureSize, 0, 2)];
  return QSizeF(picture).scaled(QSizeF(side, side).boundedTo(contents), Qt::KeepAspectRatio);
}

QRectF captionRoom(const Button& button, const QRectF& contents, QSizeF picture) {
  const PictureAlign align = alignOf(button);
  if (picture.isEmpty() || isStacked(align)) return contents;
  const double taken = std::min(picture.width() + kGap, contents.width() - 1);
  return isOnTheLeft(align) ? contents.adjusted(taken, 0, 0, 0) : contents.adjusted(0, 0, -taken, 0);
}

ButtonPlaces placeContents(const Button& button, const QRectF& contents, QSizeF picture, const QRectF& room,
                           QSizeF text) {
  const PictureAlign align = alignOf(button);
  if (!picture.isEmpty() && isStacked(align)) return stack(align, contents, picture, room, text);
  const double left = textLeft(captionAlignment(button), room, text.width());
  const bool isBesideNothing = text.isEmpty() && isBesideCaption(align);
  const double pictureX = isBesideNothing ? middle(contents.left(), contents.width(), picture.width())
                                          : pictureLeft(align, contents, picture.width(), left, text.width());
  return {QPointF(pictureX, middle(contents.top(), contents.height(), picture.height())),
          QPointF(room.left(), middle(room.top(), room.height(), text.height()))};
}

int captionAlignment(const Button& button) {
  constexpr int kCentre = 2;
  if (isStacked(alignOf(button))) return kCentre;
  const int align = button.as<std::int32_t>(Property::CaptionAlign);
  return align >= 0 && align <= kCentre ? align : kCentre;
}

QString drawnCaption(const QString& caption) {
  QString drawn = caption.left(kLongestCaption);
  return drawn.replace(QStringLiteral("||"), QStringLiteral("\n"));
}

}  // namespace veneerer
