// The outlines of the button shapes 0 to 6.
#pragma once

#include <QPainterPath>
#include <QSizeF>

namespace veneerer {

/// The outline in a rectangle at the origin, its corners rounded by up to that radius. Any number but 1 to 6
/// gives the rectangle.
///
/// 0 rectangle; 1 left side leaning; 2 right side leaning; 3 both sides leaning the same way; 4 narrow top;
/// 5 narrow bottom; 6 pointed on both sides.
QPainterPath outlineOf(int shape, QSizeF size, double radius);

/// True for the numbers that give the rectangle.
bool isRectangle(int shape);

/// How far the sloping sides reach into the face, for the room of the caption.
struct SideRoom {
  double left = 0;
  double right = 0;
};
SideRoom slopesOf(int shape, QSizeF size);

}  // namespace veneerer
