#include "ui/handles.h"

#include <algorithm>

namespace veneerer {

namespace {

// Pixels.
constexpr int kSide = 8;
constexpr int kGap = 1;
constexpr int kEasyReach = 2;

QRect movedInto(const QRect& bounds, QRect rect) {
  rect.moveRight(std::min(rect.right(), bounds.right()));
  rect.moveBottom(std::min(rect.bottom(), bounds.bottom()));
  return rect;
}

}  // namespace

QRect handleRect(Handle handle, const QRect& outline, const QRect& bounds) {
  const QPoint outside = outline.bottomRight() + QPoint(kGap + 1, kGap + 1);
  const QPoint middle = outline.center() - QPoint(kSide / 2 - 1, kSide / 2 - 1);
  const QPoint corner(changesWidth(handle) ? outside.x() : middle.x(),
                      changesHeight(handle) ? outside.y() : middle.y());
  return movedInto(bounds, QRect(corner, QSize(kSide, kSide)));
}

Handle handleAt(QPoint place, const QRect& outline, const QRect& bounds) {
  if (outline.isNull()) return Handle::None;
  const int r = kEasyReach;
  const auto found = std::ranges::find_if(kHandles, [&](Handle handle) {
    return handleRect(handle, outline, bounds).adjusted(-r, -r, r, r).contains(place);
  });
  return found == std::end(kHandles) ? Handle::None : *found;
}

// White within black shows on any Skin.
void paintHandle(QPainter& painter, const QRect& handle) {
  painter.fillRect(handle, Qt::black);
  painter.fillRect(handle.adjusted(1, 1, -1, -1), Qt::white);
}

Qt::CursorShape cursorOf(Handle handle) {
  switch (handle) {
    case Handle::Right:
      return Qt::SizeHorCursor;
    case Handle::Bottom:
      return Qt::SizeVerCursor;
    case Handle::Corner:
      return Qt::SizeFDiagCursor;
    default:
      return Qt::ArrowCursor;
  }
}

}  // namespace veneerer
