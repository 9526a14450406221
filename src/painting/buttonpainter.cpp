#include "painting/buttonpainter.h"

#include <cmath>

#include "elements/colour.h"
#include "painting/buttonlayout.h"
#include "painting/buttonoutline.h"
#include "painting/clipping.h"

namespace veneerer {

namespace {

// Bits of HoverColorLocks: the hover colour follows the normal one.
constexpr std::int32_t kForeLocked = 1;
constexpr std::int32_t kBackLocked = 2;

constexpr double kDisabledOpacity = 0.45;
constexpr QColor kLight(255, 255, 255, 190);
constexpr QColor kShade(0, 0, 0, 140);
constexpr QColor kDisabledText(112, 112, 112);

/// Of the two colours the one that counts.
Property shownColour(const Button& button, bool hover, std::int32_t lock, Property normal, Property hovered) {
  const bool isLocked = button.as<std::int32_t>(Property::HoverColorLocks) & lock;
  return hover && !isLocked ? hovered : normal;
}

bool isLatched(const Button& button) {
  return button.as<std::int32_t>(Property::Mode) != static_cast<int>(ButtonMode::Command) &&
         button.as<std::int32_t>(Property::Value) != 0;
}

// Whether the picture is a part of the face, not a small one beside the caption.
bool coversFace(const Button& button) {
  return button.isCustomShaped() || static_cast<int>(button.pictureSize()) >= kFirstCoveringSize;
}

// Light and shade of the caption: where its copies go, in pixels.
struct Effect {
  double light;
  double shade;
};

Effect effectOf(const Button& button, bool isEnabled) {
  const auto style = static_cast<CaptionStyle>(button.as<std::int32_t>(Property::CaptionStyle));
  if (style == CaptionStyle::Embossed) return {-1, 1};
  if (style == CaptionStyle::Engraved) return {1, -1};
  return {isEnabled ? 0.0 : 1.0, 0};
}

void paintCaption(QPainter& painter, const LaidOutText& text, QPointF at, const QRectF& clip,
                  const Effect& effect, const QColor& colour) {
  const auto copy = [&](double offset, const QColor& pen) {
    painter.setPen(pen);
    drawTextWithin(painter, text, at + QPointF(offset, offset), clip);
  };
  if (effect.shade != 0) copy(effect.shade, kShade);
  if (effect.light != 0) copy(effect.light, kLight);
  copy(0, colour);
}

void paintFocus(QPainter& painter, const QRectF& contents, const QRectF& clip) {
  const ClipScope scope(painter, clip, !clip.contains(contents));
  painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect((contents & clip).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace

struct ButtonPainter::Task {
  QPainter& painter;
  const Button& button;
  const Dress& dress;
  QRectF rect;
  QRectF clip;  ///< already within the rectangle
  const PixelScale& scale;
  ButtonState state;
  bool isEnabled;
  bool isDown;   ///< pressed or latched
  double nudge;  ///< how far the contents move when the button is down, pixels

  QColor colour(Property property) const { return dress.of(button, property).toQColor(); }
  QColor back() const {
    return colour(
        shownColour(button, state.hover, kBackLocked, Property::BackColor, Property::HoverBackColor));
  }
  QColor fore() const {
    if (!isEnabled) return kDisabledText;
    return colour(
        shownColour(button, state.hover, kForeLocked, Property::ForeColor, Property::HoverForeColor));
  }
  FaceLook look(QSize size, const QImage& picture) const;
};

FaceLook ButtonPainter::Task::look(QSize size, const QImage& picture) const {
  FaceLook made{.size = size,
                .scale = scale.device,
                .shape = button.buttonShape(),
                .style = button.buttonStyle(),
                .gradient = button.gradientMode(),
                .back = back().rgb(),
                .second = colour(Property::GradientColor).rgb(),
                .pictureSize = picture.isNull() ? 0 : static_cast<int>(button.pictureSize()),
                .pictureKey = picture.isNull() ? 0 : picture.cacheKey(),
                .hover = state.hover,
                .pressed = isDown,
                .enabled = isEnabled};
  // Colours that a picture hides would only make more faces of one.
  if (isCutOut(made)) {
    made.gradient = 0;
    made.back = 0;
    made.second = 0;
  }
  return made;
}

/// What was painted of a face: all of it, or the part that is seen of a large one.
struct ButtonPainter::PaintedFace {
  QImage image;  ///< null for a face that is too large for that
  QRectF place;  ///< pixels
};

/// What stands on a face, laid out.
struct ButtonPainter::Contents {
  QRectF room;
  QImage picture;       ///< the small one
  QRectF picturePlace;  ///< empty for none
  const LaidOutText* text = nullptr;
  QPointF textPlace;

  QRectF ink() const { return text ? text->ink.translated(textPlace) : QRectF(); }
};

void ButtonPainter::paint(QPainter& painter, const Button& button, const QRectF& rect, const QRectF& clip,
                          const PixelScale& scale, const ButtonState& state) {
  const bool isEnabled = button.as<bool>(Property::Enabled);
  const ButtonState answered = isEnabled ? state : ButtonState();
  const bool isDown = answered.pressed || (isEnabled && isLatched(button));
  Task task{painter, button,   dress_,    rect,   rect & clip,
            scale,   answered, isEnabled, isDown, isDown ? 1.0 : 0.0};
  if (task.clip.isEmpty()) return;
  // A custom shape may ask to be moved as a whole in place of the look of a pressed button.
  if (isDown && button.isCustomShaped() && button.as<bool>(Property::CustomClick)) {
    task.rect.translate(1, 1);
    task.isDown = false;
    task.nudge = 0;
  }
  const PaintedFace face = paintFace(task);
  const Contents contents = layOut(task);
  if (face.image.isNull() || isWithinOutline(button, task.rect, contents.ink()))
    paintContents(painter, task, contents);
  else
    paintWithinOutline(task, contents, face);
}

ButtonPainter::PaintedFace ButtonPainter::paintFace(const Task& task) {
  const QSize size = (task.rect.size() * task.scale.device).toSize();
  if (!isKeepable(size)) {
    task.painter.fillRect(task.clip, task.back());
    return {};
  }
  const QImage picture = coversFace(task.button) ? task.button.picture().shown(size) : QImage();
  FaceLook look = task.look(size, picture);
  const QRectF& rect = task.rect;
  const QTransform toFace = QTransform::fromTranslate(-rect.x(), -rect.y()) *
                            QTransform::fromScale(size.width() / rect.width(), size.height() / rect.height());
  if (!faces_.holds(look)) look.part = partOfFace(look, picture.size(), toFace.mapRect(task.clip));
  const QRectF place = look.part.isNull() ? rect : toFace.inverted().mapRect(QRectF(look.part));
  const QImage face = faces_.face(look, picture);
  drawWithin(task.painter, place, face, task.clip);
  return {face, place};
}

const LaidOutText* ButtonPainter::layOutCaption(const Task& task, QSizeF room) {
  const Button& button = task.button;
  const int height = fontPixels(button.as<float>(Property::FontSize), task.scale.y);
  if (button.caption().isEmpty() || height == 0) return nullptr;
  const double width = room.width() + lostWidth(button, task.rect, task.scale);
  return &texts_.of({drawnCaption(button.caption()), button.as<QString>(Property::FontName), height,
                     fontFlags(button), static_cast<int>(std::ceil(width)),
                     static_cast<int>(std::ceil(room.height())), captionAlignment(button)});
}

ButtonPainter::Contents ButtonPainter::layOut(const Task& task) {
  const Button& button = task.button;
  Contents made;
  made.room = contentsRect(button, task.rect);
  if (!coversFace(button)) made.picture = button.picture().shown(QSize(1, 1));
  QSizeF picture;
  if (!made.picture.isNull())
    picture = smallPictureSize(static_cast<int>(button.pictureSize()), made.picture.size(), made.room.size());
  const QRectF captions = captionRoom(button, made.room, picture);
  made.text = layOutCaption(task, captions.size());
  const QSizeF text = made.text ? QSizeF(made.text->width, made.text->height) : QSizeF(0, 0);
  const ButtonPlaces places = placeContents(button, made.room, picture, captions, text);
  const QPointF nudge(task.nudge, task.nudge);
  made.picturePlace = QRectF(places.picture + nudge, picture);
  made.textPlace =
      QPointF(task.scale.snapped(places.caption.x()), task.scale.snapped(places.caption.y())) + nudge;
  return made;
}

void ButtonPainter::paintContents(QPainter& painter, const Task& task, const Contents& contents) {
  const Button& button = task.button;
  if (!contents.picturePlace.isEmpty()) paintSmallPicture(painter, task, contents);
  if (contents.text)
    paintCaption(painter, *contents.text, contents.textPlace, task.clip, effectOf(button, task.isEnabled),
                 task.fore());
  if (task.state.focused && button.as<bool>(Property::ShowFocusRect))
    paintFocus(painter, contents.room, task.clip);
}

// Paints the contents on a layer of their own, which the outline then cuts.
void ButtonPainter::paintWithinOutline(const Task& task, const Contents& contents, const PaintedFace& face) {
  const QImage outline = task.button.isCustomShaped() ? outlineMask(face.image) : face.image;
  QImage layer(outline.size(), QImage::Format_ARGB32_Premultiplied);
  layer.fill(Qt::transparent);
  {
    QPainter painter(&layer);
    painter.setRenderHints(task.painter.renderHints());
    painter.scale(task.scale.device, task.scale.device);
    painter.translate(-face.place.topLeft());
    paintContents(painter, task, contents);
    painter.resetTransform();
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, outline);
  }
  drawWithin(task.painter, face.place, layer, task.clip);
}

void ButtonPainter::paintSmallPicture(QPainter& painter, const Task& task, const Contents& contents) {
  const PixelScale& scale = task.scale;
  const QRectF& place = contents.picturePlace;
  const QSize device = (place.size() * scale.device).toSize().expandedTo(QSize(1, 1));
  const QRectF snapped(QPointF(scale.snapped(place.x()), scale.snapped(place.y())),
                       QSizeF(device) / scale.device);
  const double opacity = painter.opacity();
  if (!task.isEnabled) painter.setOpacity(opacity * kDisabledOpacity);
  drawWithin(painter, snapped, images_.scaled(contents.picture, device), task.clip);
  painter.setOpacity(opacity);
}

}  // namespace veneerer
