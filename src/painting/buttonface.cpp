#include "painting/buttonface.h"

#include <QLinearGradient>
#include <QPainter>
#include <algorithm>

#include "elements/button.h"
#include "images/picturedecoding.h"
#include "painting/buttonshape.h"
#include "painting/buttonstyle.h"
#include "painting/facecanvas.h"
#include "painting/scaledimages.h"

namespace veneerer {

namespace {

constexpr qsizetype kCachedKiB = 32 * 1024;
constexpr QColor kDisabledVeil(128, 128, 128, 120);

// Where a picture of a covering size lies, in device pixels.
QRectF pictureRect(const FaceLook& look, QSize picture) {
  const QRectF all(QPointF(), look.size);
  return look.pictureSize > kFirstCoveringSize ? fitted(picture, all) : all;
}

QRect drawnPart(const FaceLook& look) {
  return look.part.isNull() ? QRect(QPoint(), look.size) : look.part;
}

// Scaled ahead of painting: a painter's own scaling is coarse when it makes much smaller.
QImage atSize(const QImage& image, QSizeF size) {
  return image.scaled(size.toSize().expandedTo(QSize(1, 1)), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage emptyFace(const FaceLook& look) {
  QImage face(drawnPart(look).size(), QImage::Format_ARGB32_Premultiplied);
  face.fill(Qt::transparent);
  return face;
}

QBrush faceBrush(const FaceLook& look) {
  struct Way {
    double fromX, fromY, toX, toY;
  };
  constexpr Way kWays[kGradientModeCount] = {
      {0, 0, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}, {0, 0, 1, 1}, {0, 1, 1, 0}};
  if (look.gradient <= 0 || look.gradient >= kGradientModeCount) return QColor(look.back);
  const Way& way = kWays[look.gradient];
  const double width = look.size.width();
  const double height = look.size.height();
  QLinearGradient gradient(way.fromX * width, way.fromY * height, way.toX * width, way.toY * height);
  gradient.setColorAt(0, QColor(look.back));
  gradient.setColorAt(1, QColor(look.second));
  return gradient;
}

QImage plainBase(const FaceLook& look, double radius) {
  QImage face = emptyFace(look);
  QPainter painter(&face);
  painter.translate(-drawnPart(look).topLeft());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillPath(outlineOf(look.shape, look.size, radius), faceBrush(look));
  return face;
}

// The picture over that place of an otherwise empty face. A face that is drawn in parts is so large that its
// picture isn't made much smaller, and each part would scale all of it.
QImage pictureBase(const FaceLook& look, const QImage& picture, const QRectF& place) {
  QImage face = emptyFace(look);
  QPainter painter(&face);
  painter.translate(-drawnPart(look).topLeft());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(place, look.part.isNull() ? atSize(picture, place.size()) : picture);
  return face;
}

FaceCanvas canvasOf(const FaceLook& look, const QImage& base) {
  return FaceCanvas(base, look.scale, drawnPart(look), look.size);
}

// Where a picture covers the style's shading, the picture itself tells what the pointer does.
QImage told(const QImage& picture, const FaceLook& look) {
  if (!look.pressed && !look.hover) return picture;
  FaceCanvas canvas(picture.convertToFormat(QImage::Format_ARGB32_Premultiplied), look.scale);
  canvas.fill(look.pressed ? QColor(0, 0, 0, 60) : QColor(255, 255, 255, 40));
  return canvas.face();
}

// What lies over the colours and the picture.
QImage finished(FaceCanvas canvas, const FaceLook& look) {
  const ButtonStyle& style = buttonStyle(look.style);
  style.edge(canvas, {look.hover, look.pressed});
  if (look.hover && !look.pressed) raise(canvas, style);
  if (!look.enabled) canvas.fill(kDisabledVeil);
  return canvas.face();
}

QImage drawCut(const FaceLook& look, const QImage& cut, QSize pictureSize) {
  const QRectF place = cutOutRect(look.shape, pictureSize, look.size, look.scale);
  return finished(canvasOf(look, told(pictureBase(look, cut, place), look)), look);
}

void drawOver(FaceCanvas& canvas, const FaceLook& look, const QImage& picture) {
  const QRectF place = pictureRect(look, picture.size());
  if (look.part.isNull())
    canvas.draw(told(atSize(picture, place.size()), look), place);
  else
    canvas.draw(told(pictureBase(look, picture, place), look), look.part);
}

QImage drawPlain(const FaceLook& look, const QImage& picture) {
  const ButtonStyle& style = buttonStyle(look.style);
  FaceCanvas canvas = canvasOf(look, plainBase(look, style.radius * look.scale));
  style.shade(canvas, {look.hover, look.pressed});
  if (!picture.isNull()) drawOver(canvas, look, picture);
  return finished(std::move(canvas), look);
}

}  // namespace

size_t qHash(const FaceLook& look, size_t seed) {
  const int flags = (look.hover ? 1 : 0) | (look.pressed ? 2 : 0) | (look.enabled ? 4 : 0);
  return qHashMulti(seed, look.size.width(), look.size.height(), look.scale, look.shape, look.style,
                    look.gradient, look.back, look.second, look.pictureSize, look.pictureKey, flags);
}

QRect partOfFace(const FaceLook& look, QSize picture, const QRectF& seen) {
  const QRect whole(QPoint(), look.size);
  const qint64 area = static_cast<qint64>(whole.width()) * whole.height();
  const bool isMostlySeen = seen.width() * seen.height() * 4 >= static_cast<double>(area) * 3;
  // A part's picture is coarse where it is made much smaller.
  const bool isCoarse = picture.width() > 2 * look.size.width() || picture.height() > 2 * look.size.height();
  if (area <= (picture.isEmpty() ? kSmallFace : kSmallPictureFace)) return {};
  if (area <= kLargestKeptFace && (isMostlySeen || isCoarse)) return {};
  const int reach = FaceCanvas::edgeReach(look.scale);
  return seen.toAlignedRect().adjusted(-reach, -reach, reach, reach) & whole;
}

bool isCutOut(const FaceLook& look) {
  return look.shape >= Button::kFirstCustomShape && look.shape <= Button::kLastShape && look.pictureKey != 0;
}

QImage drawFace(const FaceLook& look, const QImage& picture, QSize pictureSize) {
  return isCutOut(look) ? drawCut(look, picture, pictureSize) : drawPlain(look, picture);
}

ButtonFaces::ButtonFaces(CutOuts& cutOuts, ScaledImages& images)
    : made_(kCachedKiB), cutOuts_(cutOuts), images_(images) {}

QImage ButtonFaces::face(const FaceLook& look, const QImage& picture) {
  const bool isKept = look.part.isNull();
  if (const QImage* known = isKept ? made_.object(look) : nullptr) return *known;
  const bool isScaled = isKept && !picture.isNull() && picture.size() != look.size;
  const bool isCoarse = isScaled && !images_.spend(pixelsOf(picture.size()) + pixelsOf(look.size));
  const QImage shown = isCoarse ? picture.scaled(look.size, Qt::KeepAspectRatio) : picture;
  const QImage made = drawFace(look, isCutOut(look) ? cutOuts_.of(shown) : shown, picture.size());
  if (isKept && !isCoarse) made_.insert(look, new QImage(made), kibOf(made));
  return made;
}

}  // namespace veneerer
