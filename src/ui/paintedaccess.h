// The controls that paint themselves, for assistive tools.
#pragma once

namespace veneerer {

/// From now on they are buttons to assistive tools, which can press them. May be called again.
void exposePaintedControls();

}  // namespace veneerer
