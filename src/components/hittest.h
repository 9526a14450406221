// Which element lies at a point of a window, and where an element lies in its window.
#pragma once

#include <QRectF>

#include "elements/element.h"
#include "forms/form1.h"

namespace veneerer {

/// The Main Screen, Picture1(0): it is drawn as nothing but its children and takes no press that is meant for
/// what lies under it, so the frame shows through wherever it stands in the stacking order.
bool isSeeThrough(const Element& element);

/// The topmost visible element at a point of the canvas window, in twips; null where only the window's own
/// surface is. Elements count only within their containers.
Element* elementAt(Form1& form, float x, float y);

/// An element's rectangle in the coordinates of its window, twips. A window's own begins at 0.
QRectF windowRect(const Element& element);

/// Whether the element and all that holds it are visible; the window's own state doesn't count.
bool isShown(const Element& element);

}  // namespace veneerer
