#include "painting/buttonoutline.h"

#include <QPainterPath>
#include <algorithm>

#include "painting/buttonshape.h"
#include "painting/buttonstyle.h"

namespace veneerer {

namespace {

double radiusOf(const Button& button) {
  return buttonStyle(button.buttonStyle()).radius;
}

// What cuts a face of that size, in pixels; null for a face that nothing cuts.
QImage cutter(const Button& button, QSizeF face) {
  return button.isCustomShaped() ? button.picture().shown(face.toSize()) : QImage();
}

// Nearly every caption of a rounded rectangle is, which spares its curves.
bool isClearOfCorners(const QRectF& inner, const QRectF& face, double radius) {
  const double r = std::min({radius, face.width() / 2, face.height() / 2});
  return face.adjusted(r, 0, -r, 0).contains(inner) || face.adjusted(0, r, 0, -r).contains(inner);
}

}  // namespace

bool isWithinOutline(const Button& button, const QRectF& face, const QRectF& ink) {
  const QRectF shown = ink & face;
  if (shown.isEmpty()) return true;
  if (!cutter(button, face.size()).isNull()) return false;
  const double radius = radiusOf(button);
  if (isRectangle(button.buttonShape()) && isClearOfCorners(shown, face, radius)) return true;
  const QPainterPath outline = outlineOf(button.buttonShape(), face.size(), radius);
  const QRectF inner = shown.translated(-face.topLeft());
  // An outline is convex, so the corners speak for all.
  const QPointF corners[] = {inner.topLeft(), inner.topRight(), inner.bottomLeft(), inner.bottomRight()};
  return std::ranges::all_of(corners, [&](QPointF corner) { return outline.contains(corner); });
}

QImage outlineMask(QImage face) {
  for (int y = 0; y < face.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(face.scanLine(y));
    for (int x = 0; x < face.width(); ++x) row[x] = isSeen(row[x]) ? qRgb(0, 0, 0) : 0;
  }
  return face;
}

bool isSeenAt(const Button& button, QSizeF face, QPointF at, CutOuts& cutOuts) {
  const int shape = button.buttonShape();
  if (const QImage picture = cutter(button, face); !picture.isNull())
    return isSeenAt(cutOuts.of(picture), cutOutRect(shape, picture.size(), face, 1), at);
  const double radius = radiusOf(button);
  return (radius == 0 && isRectangle(shape)) || outlineOf(shape, face, radius).contains(at);
}

bool isSeenAt(const QImage& image, const QRectF& place, QPointF at) {
  if (image.isNull() || !place.contains(at)) return false;
  const int x = static_cast<int>((at.x() - place.x()) * image.width() / place.width());
  const int y = static_cast<int>((at.y() - place.y()) * image.height() / place.height());
  return image.valid(x, y) && isSeen(image.pixel(x, y));
}

}  // namespace veneerer
