// The toolkit's font dialog for a label's font.
#pragma once

#include <QWidget>
#include <optional>

#include "elements/label.h"

namespace veneerer {

/// The dialog can't show every font: not a family that this machine lacks, nor a size with a fraction of a
/// point. What the operator leaves as the dialog came up is given back as it went in, and only the rest is
/// taken from the dialog. Nothing on cancel.
std::optional<FontChoice> runFontDialog(const FontChoice& initial, QWidget* parent);

}  // namespace veneerer
