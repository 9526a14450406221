#include "ui/placement.h"

#include <algorithm>

namespace veneerer {

namespace {

bool isFree(const QRect& place, const QRect& available, const QList<QRect>& taken) {
  return available.contains(place) &&
         std::ranges::none_of(taken, [&](const QRect& other) { return other.intersects(place); });
}

// The first free place below or beside what stands already.
QRect freePlace(QSize size, const QRect& available, const QList<QRect>& taken) {
  for (const QRect& other : taken)
    for (const QPoint corner :
         {QPoint(other.right() + 1, available.top()), QPoint(other.left(), other.bottom() + 1),
          QPoint(other.right() + 1, other.top())})
      if (const QRect place(corner, size); isFree(place, available, taken)) return place;
  return QRect();
}

QRect placeAtRight(QSize size, const QRect& available, const QRect& canvas) {
  const int beside = std::min(canvas.right() + 1, available.right() + 1 - size.width());
  return QRect(QPoint(std::max(available.left(), beside), available.top()), size);
}

}  // namespace

QList<QRect> placeBeside(const QRect& available, QSize canvas, const QList<QSize>& windows) {
  const QRect canvasPlace(available.topLeft(), canvas);
  QList<QRect> taken{canvasPlace};
  QList<QRect> places;
  for (const QSize size : windows) {
    QRect place = freePlace(size, available, taken);
    if (place.isNull()) place = placeAtRight(size, available, canvasPlace);
    taken.append(place);
    places.append(place);
  }
  return places;
}

}  // namespace veneerer
