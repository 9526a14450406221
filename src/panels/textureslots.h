// The slots of the texture viewer: which thumbnail stands for which picture of the canvas, and where the
// chosen name is kept.
#pragma once

#include <vector>

#include "forms/state.h"

namespace veneerer {

struct TextureSlot {
  Element* thumbnail;
  std::vector<Element*> canvas;  ///< what shows the picture at once; none for some
  ImageSlot* name;
};

/// The slot of that thumbnail; without a name when a click on it has no action.
TextureSlot textureSlot(State& state, const Element& thumbnail);

/// The file dialog's filter for that thumbnail, or for the frame preview; empty where a click on it opens
/// none.
QString textureFilter(State& state, const Element& thumbnail);

}  // namespace veneerer
