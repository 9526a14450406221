#pragma once

namespace veneerer {

enum class MouseButton { None, Left, Right, Middle };

}  // namespace veneerer
