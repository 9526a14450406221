// The first places of the panels.
#pragma once

#include <QDockWidget>
#include <QMainWindow>

namespace veneerer {

/// How the panels are shared out to columns beside the canvas: the index of each one's column. A panel takes
/// a column of its own as long as there is room for it; the others lie in the last one, as tabs. Widths in
/// pixels.
QList<int> columnsOf(const QList<int>& widths, int room);

/// Docks the panels, those torn off too, at the right of the canvas, which has that size; none is opened or
/// closed. The window becomes as large as it all needs, within its screen.
void arrangePanels(QMainWindow& window, const QList<QDockWidget*>& panels, QSize canvas);

}  // namespace veneerer
