// The screens of a Skin as PNG files.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "designer/designer.h"
#include "files/replacefiles.h"

namespace veneerer {

/// Paints the screen of an Edit Section entry as the canvas shows it when the entry is chosen. The picture
/// has the size of canvasSize().
QImage renderScreen(Designer& designer, class CanvasPainter& painter, int entry);

/// Writes one PNG per entry, "00 Main Screen.png" and so on, into the folder, which is made when missing;
/// with only, just the entries of these names. Each file is replaced by a whole new one. Throws WriteRefused,
/// before the first is written, when one of them can't be, and RecordError when writing fails all the same.
void renderScreens(Designer& designer, const QString& folder, const QStringList& only);

/// Throws WriteRefused when one of these files of the folder can't be written. Nothing is changed.
void requireWritable(Disk& disk, const QString& folder, std::vector<NewFile> files);

/// Replaces that file of the folder by a PNG file. Throws WriteRefused and RecordError.
void writePng(Disk& disk, const QString& folder, const QString& name, const QImage& image);

/// Makes the folder that files are to be written into. Throws RecordError when it can't be made.
void makeTarget(const QString& folder, Disk& disk);

}  // namespace veneerer
