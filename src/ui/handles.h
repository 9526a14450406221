// The handles that give something its size.
#pragma once

#include <QPainter>
#include <QRect>

namespace veneerer {

enum class Handle { None, Right, Bottom, Corner };

/// Every real one; the corner goes first, where they lie close.
inline constexpr Handle kHandles[] = {Handle::Corner, Handle::Right, Handle::Bottom};

constexpr bool changesWidth(Handle handle) {
  return handle == Handle::Right || handle == Handle::Corner;
}
constexpr bool changesHeight(Handle handle) {
  return handle == Handle::Bottom || handle == Handle::Corner;
}

/// Where a handle of an outline stands: just outside of it, but within the bounds. Pixels.
QRect handleRect(Handle handle, const QRect& outline, const QRect& bounds);

/// The handle at that place, a little more than it is painted; None where none is.
Handle handleAt(QPoint place, const QRect& outline, const QRect& bounds);

void paintHandle(QPainter& painter, const QRect& handle);

Qt::CursorShape cursorOf(Handle handle);

}  // namespace veneerer
