// Screens as pictures, for whoever only looks at a Skin.
#pragma once

#include <QImage>

#include "forms/state.h"
#include "painting/canvaspainter.h"
#include "platform/platform.h"

namespace veneerer {

/// The canvas window as it is, in the size of canvasSize(): without outlines, handles and guides.
QImage canvasPicture(const Form1& form, const Screen& screen, CanvasPainter& painter);

/// The screen of that entry, 0 to 31, as the canvas shows it when the entry is chosen; nothing is changed.
QImage screenPicture(State& state, const Screen& screen, CanvasPainter& painter, int entry);

/// The same in small, no side above that, pixels: painted in twice that size and reduced, which is far
/// cheaper than the whole.
QImage screenSketch(State& state, const Screen& screen, CanvasPainter& painter, int entry, int mostSide);

/// The size of a picture that is made smaller until no side is above that; at least a pixel each way. None is
/// enlarged.
QSize reducedTo(QSize picture, int mostSide);

}  // namespace veneerer
