#pragma once

namespace veneerer {

enum class MouseButton { None, Left, Right };

}  // namespace veneerer
