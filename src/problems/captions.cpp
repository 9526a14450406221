#include "problems/captions.h"

#include <cmath>

#include "painting/buttonface.h"
#include "painting/buttonlayout.h"

namespace veneerer {

namespace {

TextRequest requestOf(const Element& element, const QString& text, int fontHeight, QSizeF room,
                      int alignment) {
  return {text,
          element.as<QString>(Property::FontName),
          fontHeight,
          fontFlags(element),
          static_cast<int>(std::ceil(room.width())),
          static_cast<int>(std::ceil(room.height())),
          alignment};
}

QSizeF sizeOf(const LaidOutText& text) {
  return QSizeF(text.width, text.height);
}

}  // namespace

std::optional<CaptionLayout> Captions::of(const Element& element) {
  const bool isText = element.kind() == Kind::Label || element.kind() == Kind::Button;
  if (!isText || element.as<QString>(Property::Caption).isEmpty()) return {};
  const std::optional<QRectF> place = pixelRect(element, QPointF(), scale_);
  const int fontHeight = fontPixels(element.as<float>(Property::FontSize), scale_.y);
  if (!place || fontHeight == 0) return {};
  const QRectF face(QPointF(), place->size());
  if (element.kind() == Kind::Label) return ofLabel(cast<Label>(element), face, fontHeight);
  return ofButton(cast<Button>(element), face, fontHeight);
}

CaptionLayout Captions::ofLabel(const Label& label, const QRectF& face, int fontHeight) {
  const LaidOutText& text =
      texts_.of(requestOf(label, label.caption(), fontHeight, face.size(), label.alignment()));
  return {face, sizeOf(text), text.ink};
}

CaptionLayout Captions::ofButton(const Button& button, const QRectF& face, int fontHeight) {
  const QRectF contents = contentsRect(button, face);
  const int pictureSize = static_cast<int>(button.pictureSize());
  const bool isBeside = !button.isCustomShaped() && pictureSize < kFirstCoveringSize;
  QSizeF picture;
  if (const QSize own = pictures_.sizeOf(button.picture()); isBeside && !own.isEmpty())
    picture = smallPictureSize(pictureSize, own, contents.size());
  const QRectF room = captionRoom(button, contents, picture);
  const LaidOutText& text = texts_.of(
      requestOf(button, drawnCaption(button.caption()), fontHeight, room.size(), captionAlignment(button)));
  const ButtonPlaces places = placeContents(button, contents, picture, room, sizeOf(text));
  return {room, sizeOf(text), text.ink.translated(places.caption)};
}

}  // namespace veneerer
