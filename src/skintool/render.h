// The screens of a Skin as PNG files.
#pragma once

#include <QString>
#include <QStringList>

#include "designer/designer.h"

namespace veneerer {

/// Paints the screen of an Edit Section entry as the canvas shows it when the entry is chosen. The picture
/// has the size of the canvas window; a side beyond 16384 pixels is cut.
QImage renderScreen(Designer& designer, class CanvasPainter& painter, int entry);

/// Writes one PNG per entry, "00 Main Screen.png" and so on, into the folder, which is made when missing;
/// with only, just the entries of these names. Throws RecordError when a file can't be written.
void renderScreens(Designer& designer, const QString& folder, const QStringList& only);

}  // namespace veneerer
