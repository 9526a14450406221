// Line icons of the Skins.
#pragma once

#include <QPainter>

namespace veneerer::looks {

enum class Icon {
  None,
  Clock,
  Magnifier,
  Queue,
  Podium,
  Sliders,
  Calendar,
  Note,
  Tiles,
  Disc,
  Play,
  Person,
  Stack,
  Plus,
  Dots,
  Previous,
  Pause,
  Next,
  Letters,
  Lock,
  Cross,
  Check,
  Dice,
};

/// Of the menu's buttons, by their index.
inline constexpr Icon kMenuIcons[] = {
    Icon::Clock, Icon::Magnifier, Icon::Queue, Icon::Podium, Icon::Sliders, Icon::Calendar, Icon::Note,
    Icon::Tiles, Icon::Disc,      Icon::Play,  Icon::Person, Icon::Stack,   Icon::Plus,     Icon::Dots};

/// Of the player's buttons, by their index.
inline constexpr Icon kTransportIcons[] = {Icon::Previous, Icon::Pause, Icon::Next};

/// Draws the icon in the largest square in the middle of the rectangle, in that colour.
void drawIcon(QPainter& painter, const QRectF& rect, Icon icon, const QColor& colour);

/// An icon as a path in a square of 24 by 24, for painters of their own.
QPainterPath iconPath(Icon icon);

}  // namespace veneerer::looks
