// What stands behind the text or the picture of an element.
#pragma once

namespace veneerer {

/// A veil lets what lies beneath through, a little greyer: the place of a picture that is still to come. Only
/// panels have it, and no record file.
enum class BackStyle { Transparent = 0, Opaque = 1, Veil = 2 };

}  // namespace veneerer
