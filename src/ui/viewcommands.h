// The commands of the view on the canvas: zoom, rulers, grid, guides.
#pragma once

#include <QMenu>
#include <QToolButton>

#include "ui/canvasview.h"

namespace veneerer {

/// Appends them to the View menu; their keys work in every window of the program.
void addViewCommands(QMenu& menu, CanvasView& view);

/// Shows the zoom, and a click opens a menu of zooms.
QToolButton* makeZoomButton(CanvasView& view);

}  // namespace veneerer
