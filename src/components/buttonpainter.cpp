#include "components/buttonpainter.h"

#include <cmath>

#include "components/buttonlayout.h"
#include "components/clipping.h"
#include "components/colours.h"

namespace veneerer {

namespace {

// Bits of HoverColorLocks: the hover colour follows the normal one.
constexpr std::int32_t kForeLocked = 1;
constexpr std::int32_t kBackLocked = 2;

constexpr double kDisabledOpacity = 0.45;
constexpr QColor kLight(255, 255, 255, 190);
constexpr QColor kShade(0, 0, 0, 140);
constexpr QColor kDisabledText(112, 112, 112);

std::int32_t shownColour(const Button& button, bool hover, std::int32_t lock, Property normal,
                         Property hovered) {
  const bool isLocked = button.as<std::int32_t>(Property::HoverColorLocks) & lock;
  return button.as<std::int32_t>(hover && !isLocked ? hovered : normal);
}

bool isLatched(const Button& button) {
  return button.as<std::int32_t>(Property::Mode) != static_cast<int>(ButtonMode::Command) &&
         button.as<std::int32_t>(Property::Value) != 0;
}

// Whether the picture is a part of the face, not a small one beside the caption.
bool coversFace(const Button& button) {
  return button.isCustomShaped() || button.pictureSize() >= kFirstCoveringSize;
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
  QRectF rect;
  QRectF clip;  ///< already within the rectangle
  const PixelScale& scale;
  ButtonState state;
  bool isEnabled;
  bool isDown;   ///< pressed or latched
  double nudge;  ///< how far the contents move when the button is down, pixels

  QColor back() const {
    return toQColor(
        shownColour(button, state.hover, kBackLocked, Property::BackColor, Property::HoverBackColor));
  }
  QColor fore() const {
    if (!isEnabled) return kDisabledText;
    return toQColor(
        shownColour(button, state.hover, kForeLocked, Property::ForeColor, Property::HoverForeColor));
  }
};

void ButtonPainter::paint(QPainter& painter, const Button& button, const QRectF& rect, const QRectF& clip,
                          const PixelScale& scale, const ButtonState& state) {
  const bool isEnabled = button.as<bool>(Property::Enabled);
  const ButtonState answered = isEnabled ? state : ButtonState();
  const bool isDown = answered.pressed || (isEnabled && isLatched(button));
  Task task{painter, button, rect, rect & clip, scale, answered, isEnabled, isDown, isDown ? 1.0 : 0.0};
  if (task.clip.isEmpty()) return;
  // A custom shape may ask to be moved as a whole in place of the look of a pressed button.
  if (isDown && button.isCustomShaped() && button.as<bool>(Property::CustomClick)) {
    task.rect.translate(1, 1);
    task.isDown = false;
    task.nudge = 0;
  }
  paintFace(task);
  paintContents(task);
}

void ButtonPainter::paintFace(const Task& task) {
  const QSize size = (task.rect.size() * task.scale.device).toSize();
  const QColor back = task.back();
  if (!isKeepable(size)) {
    task.painter.fillRect(task.clip, back);
    return;
  }
  const Button& button = task.button;
  const QImage picture = coversFace(button) ? button.picture().image() : QImage();
  FaceLook look{.size = size,
                .scale = task.scale.device,
                .shape = button.buttonShape(),
                .style = button.buttonStyle(),
                .gradient = button.gradientMode(),
                .back = back.rgb(),
                .second = toQColor(button.gradientColor()).rgb(),
                .pictureSize = picture.isNull() ? 0 : button.pictureSize(),
                .pictureKey = picture.isNull() ? 0 : picture.cacheKey(),
                .hover = task.state.hover,
                .pressed = task.isDown,
                .enabled = task.isEnabled};
  // Colours that a picture hides would only make more faces of one.
  if (isCutOut(look)) {
    look.gradient = 0;
    look.back = 0;
    look.second = 0;
  }
  drawWithin(task.painter, task.rect, faces_.face(look, picture), task.clip);
}

const LaidOutText* ButtonPainter::layOut(const Task& task, QSizeF room) {
  const Button& button = task.button;
  const int height = fontPixels(button.as<float>(Property::FontSize), task.scale.y);
  if (button.caption().isEmpty() || height == 0) return nullptr;
  return &texts_.of({drawnCaption(button.caption()), button.as<QString>(Property::FontName), height,
                     fontFlags(button), static_cast<int>(std::ceil(room.width())),
                     static_cast<int>(std::ceil(room.height())), captionAlignment(button)});
}

void ButtonPainter::paintContents(const Task& task) {
  const Button& button = task.button;
  const QRectF contents = contentsRect(button, task.rect);
  const QImage image = coversFace(button) ? QImage() : button.picture().image();
  const QSizeF picture =
      image.isNull() ? QSizeF() : smallPictureSize(button.pictureSize(), image.size(), contents.size());
  const QRectF room = captionRoom(button, contents, picture);
  const LaidOutText* text = layOut(task, room.size());
  const QSizeF textSize = text ? QSizeF(text->width, text->height) : QSizeF(0, 0);
  const ButtonPlaces places = placeContents(button, contents, picture, room, textSize);
  const QPointF nudge(task.nudge, task.nudge);
  if (!picture.isEmpty()) paintSmallPicture(task, image, QRectF(places.picture + nudge, picture));
  if (text) {
    const QPointF at(task.scale.snapped(places.caption.x()), task.scale.snapped(places.caption.y()));
    paintCaption(task.painter, *text, at + nudge, task.clip, effectOf(button, task.isEnabled), task.fore());
  }
  if (task.state.focused && button.as<bool>(Property::ShowFocusRect))
    paintFocus(task.painter, contents, task.clip);
}

void ButtonPainter::paintSmallPicture(const Task& task, const QImage& image, const QRectF& place) {
  const PixelScale& scale = task.scale;
  const QSize device = (place.size() * scale.device).toSize().expandedTo(QSize(1, 1));
  const QRectF snapped(QPointF(scale.snapped(place.x()), scale.snapped(place.y())),
                       QSizeF(device) / scale.device);
  const double opacity = task.painter.opacity();
  if (!task.isEnabled) task.painter.setOpacity(opacity * kDisabledOpacity);
  drawWithin(task.painter, snapped, images_.scaled(image, device), task.clip);
  task.painter.setOpacity(opacity);
}

}  // namespace veneerer
