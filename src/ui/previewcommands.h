// The commands that give a Skin's looks away: a picture on the clipboard, a web page.
#pragma once

#include <QMenu>

#include "ui/bindings.h"

namespace veneerer {

/// Adds "Export as Web Page..." to the File menu. What came of it is a note; what stands against writing is
/// told in a box.
void addPreviewCommands(QMenu& file, const Ui& ui);

/// Adds "Copy This Screen" to the Edit menu: the canvas as it is, without outlines, as a picture on the
/// clipboard.
void addCopyScreen(QMenu& edit, const Ui& ui);

}  // namespace veneerer
