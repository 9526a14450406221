// What stands in pictures on the buttons of the frame, and how large a picture of an element is.
#pragma once

#include "elements/button.h"
#include "looks/artist.h"

namespace veneerer::looks {

/// The size of a picture that fills the element, in pixels of the built-in design.
QSize sizeOf(const Element& element);

/// The caption's lines, as the jukebox breaks them.
QStringList linesOf(const Button& button);

/// The picture of a menu button, by its place among them: an icon with the caption as it stands.
QImage drawMenuFace(const Artist& artist, const Button& button, int index);

/// The picture of a button that steers the player, by its place among them.
QImage drawTransportFace(const Artist& artist, const Button& button, int index);

}  // namespace veneerer::looks
