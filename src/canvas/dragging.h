// Moving elements with the mouse.
#pragma once

#include "canvas/mousebutton.h"
#include "forms/state.h"

namespace veneerer {

class Dragging {
public:
  explicit Dragging(State& state) : state_(state) {}

  /// Any button. x and y in twips, in the element's own coordinates.
  void press(Element& element, float x, float y, MouseButton button);

  /// A drag step, when the left button is the one held. The limits are tested ahead of each move and nothing
  /// is clamped, so the last step may carry an element past its limit. A family without a rule doesn't move.
  void move(Element& element, float x, float y, MouseButton held);

private:
  State& state_;
};

}  // namespace veneerer
