// All screens of a Skin in one file.
#pragma once

#include <QString>

#include "designer/designer.h"

namespace veneerer {

/// Replaces the file by screenSheet() as PNG. Throws WriteRefused, before anything is drawn, when it can't be
/// written, and RecordError when writing fails all the same.
void writeScreenSheet(Designer& designer, const QString& path);

/// The same for webPage().
void writeWebPage(Designer& designer, const QString& path);

}  // namespace veneerer
