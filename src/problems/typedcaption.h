// What becomes of a caption while it is being typed.
#pragma once

#include <QString>

namespace veneerer {

/// One sentence: what a save and the next load would make of the caption, and why; empty when it would come
/// back as it stands.
QString typedCaptionDamage(const QString& caption);

}  // namespace veneerer
