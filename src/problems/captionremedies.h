// What could be done about a caption that a record file can't hold.
#pragma once

#include "elements/element.h"
#include "problems/remedy.h"

namespace veneerer {

/// Captions close to the element's own that come back as they stand; none for one that comes back.
Remedies captionRemedies(const Element& element);

}  // namespace veneerer
