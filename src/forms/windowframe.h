// What the canvas window's own frame adds to the size of a Skin.
#pragma once

namespace veneerer {

inline constexpr int kFramePixels = 4;     ///< across
inline constexpr float kFrameTwips = 500;  ///< down

}  // namespace veneerer
