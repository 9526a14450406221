// The commands of the mock-up, a picture that the canvas is compared with.
#pragma once

#include <QMenu>

#include "ui/canvaswidget.h"

namespace veneerer {

/// Fills the menu; canvas and hands must outlive it.
void addMockUpCommands(QMenu& menu, CanvasWidget& canvas, Operator& hands);

}  // namespace veneerer
