#include "painting/canvaspainter.h"

#include <algorithm>
#include <cmath>

#include "elements/colour.h"
#include "painting/canvassize.h"
#include "painting/clipping.h"
#include "painting/panelground.h"
#include "painting/seenelements.h"

namespace veneerer {

namespace {

// A corner of a picture reaches at least a pixel past what is seen, with which the last one may be mixed, and
// grows in steps: an element that is sized shows the same corner for a while. Pixels.
constexpr int kCornerStep = 256;

QSize cornerFor(QPointF end) {
  const auto side = [](double pixels) { return (static_cast<int>(pixels) / kCornerStep + 1) * kCornerStep; };
  return QSize(side(end.x() + 1), side(end.y() + 1));
}

// The canvas from its top left corner, without those far sides that no canvas has.
QRectF canvasBounds(const Form1& form, const QRect& exposed, const PixelScale& scale) {
  const auto within = [](double pixels) {
    return pixels > 0 ? std::min<double>(pixels, kLongestCanvasSide) : 0;
  };
  const QRectF canvas(0, 0, within(form.width() * scale.x), within(form.height() * scale.y));
  return canvas | QRectF(exposed);
}

// A line one pixel wide along the inner edge, drawn as four bars: only those in sight cost anything.
void paintBorder(QPainter& painter, const QRectF& rect, const QRectF& clip) {
  const QRectF bars[] = {
      QRectF(rect.x(), rect.y(), rect.width(), 1), QRectF(rect.x(), rect.bottom() - 1, rect.width(), 1),
      QRectF(rect.x(), rect.y(), 1, rect.height()), QRectF(rect.right() - 1, rect.y(), 1, rect.height())};
  for (const QRectF& bar : bars) painter.fillRect(bar & rect & clip, Qt::black);
}

}  // namespace

CanvasPainter::CanvasPainter() = default;

void CanvasPainter::begin(QPainter& painter, double pixelsPerTwipX, double pixelsPerTwipY) {
  scale_ = {pixelsPerTwipX, pixelsPerTwipY, deviceScale(painter)};
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
}

void CanvasPainter::paint(QPainter& painter, const Form1& form, const QRect& exposed, double pixelsPerTwipX,
                          double pixelsPerTwipY) {
  if (exposed.isEmpty()) return;
  painter.save();
  painter.setClipRect(exposed, Qt::IntersectClip);
  begin(painter, pixelsPerTwipX, pixelsPerTwipY);
  bounds_ = canvasBounds(form, exposed, scale_);
  painter.fillRect(exposed, form.backColor().toQColor());
  paintNatural(painter, form.picture(), QRectF(QPointF(), bounds_.bottomRight()), exposed);
  for (const SeenElement& seen :
       stage_ ? seenElements(*stage_, exposed, scale_) : seenElements(form, exposed, scale_))
    paintOne(painter, *seen.element, seen.rect, seen.clip);
  painter.restore();
}

void CanvasPainter::paintElement(QPainter& painter, const Element& element, const QRectF& pixels,
                                 double pixelsPerTwip) {
  if (element.kind() == Kind::Button) {
    paintButton(painter, cast<Button>(element), pixels, {}, pixelsPerTwip);
    return;
  }
  painter.save();
  begin(painter, pixelsPerTwip, pixelsPerTwip);
  bounds_ = pixels;
  paintOne(painter, element, pixels, pixels);
  painter.restore();
}

void CanvasPainter::paintButton(QPainter& painter, const Button& button, const QRectF& pixels,
                                const ButtonState& state, double pixelsPerTwip) {
  painter.save();
  begin(painter, pixelsPerTwip, pixelsPerTwip);
  buttons_.paint(painter, button, pixels, pixels, scale_, state);
  painter.restore();
}

void CanvasPainter::paintOne(QPainter& painter, const Element& element, const QRectF& rect,
                             const QRectF& clip) {
  switch (element.kind()) {
    case Kind::Label:
      return paintLabel(painter, cast<Label>(element), rect, clip);
    case Kind::Button:
      return buttons_.paint(painter, cast<Button>(element), rect, clip, scale_,
                            {.hover = &element == hovered_, .pressed = &element == pressed_});
    case Kind::PictureBox:
      return paintPictureBox(painter, cast<PictureBox>(element), rect, clip);
    case Kind::ImageBox:
      return paintImageBox(painter, cast<ImageBox>(element), rect, clip);
    case Kind::AnimatedFrame:
      return paintFrame(painter, cast<AnimatedFrame>(element), rect, clip);
    case Kind::AlphaImage:
      return paintAlphaImage(painter, cast<AlphaImage>(element), rect, clip);
    default:
      return;
  }
}

void CanvasPainter::paintLabel(QPainter& painter, const Label& label, const QRectF& rect,
                               const QRectF& clip) {
  const QRectF shown = rect & clip;
  if (label.isOpaque()) painter.fillRect(shown, dress_.of(label, Property::BackColor).toQColor());
  const int height = fontPixels(label.fontSize(), scale_.y);
  if (label.caption().isEmpty() || height == 0) return;
  const LaidOutText& text =
      texts_.of({label.caption(), label.fontName(), height, fontFlags(label),
                 static_cast<int>(std::ceil(rect.width() + lostWidth(label, rect, scale_))),
                 static_cast<int>(std::ceil(rect.height())), label.alignment()});
  painter.setPen(dress_.of(label, Property::ForeColor).toQColor());
  drawTextWithin(painter, text, rect.topLeft(), shown);
}

// In its own size: a pixel of the picture is a device-independent pixel.
void CanvasPainter::paintNatural(QPainter& painter, const Picture& picture, const QRectF& rect,
                                 const QRectF& clip) {
  const QPointF end = (rect & bounds_).bottomRight() - rect.topLeft();
  const QImage image = picture.shownCorner(cornerFor(end));
  drawWithin(painter, QRectF(rect.topLeft(), QSizeF(image.size())), image, clip);
}

void CanvasPainter::paintPictureBox(QPainter& painter, const PictureBox& box, const QRectF& rect,
                                    const QRectF& clip) {
  const QRectF shown = rect & clip;
  for (const GroundPiece& piece : groundOf(box, rect, scale_, dress_)) {
    const QRectF part = piece.rect & shown;
    if (piece.colour.isValid()) painter.fillRect(part, piece.colour);
    paintNatural(painter, *piece.picture, piece.rect, part);
  }
  if (box.as<std::int32_t>(Property::BorderStyle) == 1) paintBorder(painter, rect, clip);
}

void CanvasPainter::paintImageBox(QPainter& painter, const ImageBox& box, const QRectF& rect,
                                  const QRectF& clip) {
  if (box.as<bool>(Property::Stretch))
    paintStretched(painter, box.picture(), rect, clip);
  else
    paintNatural(painter, box.picture(), rect, rect & clip);
}

void CanvasPainter::paintFrame(QPainter& painter, const AnimatedFrame& frame, const QRectF& rect,
                               const QRectF& clip) {
  // A running frame is shown once, so it isn't worth a scaled copy of its own.
  const QImage running = frames_ ? frames_(frame) : QImage();
  if (running.isNull())
    paintStretched(painter, frame.picture(), rect, clip);
  else
    drawWithin(painter, rect, running, clip);
}

void CanvasPainter::paintAlphaImage(QPainter& painter, const AlphaImage& element, const QRectF& rect,
                                    const QRectF& clip) {
  const Picture& picture = element.picture();
  // It has a size once it was decoded.
  if (!picture.size().isValid()) picture.shown(devicePixels(rect));
  if (!picture.size().isEmpty()) paintStretched(painter, picture, fitted(picture.size(), rect), clip);
}

void CanvasPainter::paintStretched(QPainter& painter, const Picture& picture, const QRectF& rect,
                                   const QRectF& clip) {
  const QSize device = devicePixels(rect);
  const QImage image = picture.shown(device);
  if (image.isNull()) return;
  drawWithin(painter, rect, isKeepable(device) ? images_.scaled(image, device) : image, clip);
}

QSize CanvasPainter::devicePixels(const QRectF& rect) const {
  const QSizeF size = rect.size() * scale_.device;
  // Sizes are within reach of 32 bits: pixelRect and the device scale see to that.
  return QSize(qRound(size.width()), qRound(size.height()));
}

}  // namespace veneerer
