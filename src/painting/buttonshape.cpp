#include "painting/buttonshape.h"

#include <QPolygonF>
#include <algorithm>
#include <cmath>

namespace veneerer {

namespace {

// How far each corner of the rectangle moves inwards, in slopes. The points of shape 6 lie between.
struct Corners {
  int topLeft, topRight, bottomRight, bottomLeft;
  bool isPointed;
};
constexpr Corners kShapes[] = {
    {0, 0, 0, 0, false}, {1, 0, 0, 0, false}, {0, 0, 1, 0, false}, {1, 0, 1, 0, false},
    {1, 1, 0, 0, false}, {0, 0, 1, 1, false}, {1, 1, 1, 1, true},
};

const Corners& cornersOf(int shape) {
  return kShapes[shape >= 0 && shape < static_cast<int>(std::size(kShapes)) ? shape : 0];
}

double slopeOf(QSizeF size) {
  return std::min(size.height() / 2, size.width() / 3);
}

QPolygonF polygonOf(int shape, QSizeF size) {
  const Corners& c = cornersOf(shape);
  const double slope = slopeOf(size);
  const double right = size.width();
  const double bottom = size.height();
  QPolygonF polygon;
  polygon << QPointF(c.topLeft * slope, 0) << QPointF(right - c.topRight * slope, 0);
  if (c.isPointed) polygon << QPointF(right, bottom / 2);
  polygon << QPointF(right - c.bottomRight * slope, bottom) << QPointF(c.bottomLeft * slope, bottom);
  if (c.isPointed) polygon << QPointF(0, bottom / 2);
  return polygon;
}

double distance(QPointF a, QPointF b) {
  return std::hypot(b.x() - a.x(), b.y() - a.y());
}

// The point on the way from a corner to its neighbour where the rounding begins.
QPointF onTheWay(QPointF corner, QPointF neighbour, double radius) {
  const double length = distance(corner, neighbour);
  return length > 0 ? corner + (neighbour - corner) * (radius / length) : corner;
}

// A rectangle may become a pill; a sloping shape keeps its slopes.
double largestRadius(int shape, QSizeF size) {
  constexpr double kOfSlopingShapes = 0.28;  // of the height
  return isRectangle(shape) ? std::min(size.width(), size.height()) / 2 : size.height() * kOfSlopingShapes;
}

QPainterPath rounded(const QPolygonF& polygon, double radius) {
  // With these handles a Bézier curve comes closest to a quarter of a circle.
  constexpr double kHandle = 1 - 0.5523;
  QPainterPath path;
  const qsizetype count = polygon.size();
  for (qsizetype i = 0; i < count; ++i) {
    const QPointF corner = polygon[i];
    const QPointF before = polygon[(i + count - 1) % count];
    const QPointF after = polygon[(i + 1) % count];
    const double room = std::min({radius, distance(corner, before) / 2, distance(corner, after) / 2});
    const QPointF from = onTheWay(corner, before, room);
    const QPointF to = onTheWay(corner, after, room);
    if (i == 0)
      path.moveTo(from);
    else
      path.lineTo(from);
    path.cubicTo(corner + (from - corner) * kHandle, corner + (to - corner) * kHandle, to);
  }
  path.closeSubpath();
  return path;
}

}  // namespace

bool isRectangle(int shape) {
  return &cornersOf(shape) == &kShapes[0];
}

QPainterPath outlineOf(int shape, QSizeF size, double radius) {
  const QPolygonF polygon = polygonOf(shape, size);
  if (radius > 0) return rounded(polygon, std::min(radius, largestRadius(shape, size)));
  QPainterPath path;
  path.addPolygon(polygon);
  path.closeSubpath();
  return path;
}

SideRoom slopesOf(int shape, QSizeF size) {
  const Corners& c = cornersOf(shape);
  const double slope = slopeOf(size) / 2;
  return {std::max(c.topLeft, c.bottomLeft) * slope, std::max(c.topRight, c.bottomRight) * slope};
}

}  // namespace veneerer
