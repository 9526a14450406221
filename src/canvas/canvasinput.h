// The mouse on the canvas: the one way in for what an operator does there.
#pragma once

#include "canvas/dragging.h"
#include "canvas/selection.h"
#include "platform/platform.h"

namespace veneerer {

class CanvasInput {
public:
  /// Listens to the clicks on the canvas and on the samples of Form6 for as long as it lives.
  CanvasInput(State& state, const Platform& platform);

  /// The press event; x and y in twips in the element's own coordinates. The right button gives a button its
  /// picture.
  void press(Element& element, float x, float y, MouseButton button);
  /// The move event; the button is the one held down.
  void move(Element& element, float x, float y, MouseButton held) { dragging_.move(element, x, y, held); }

  /// Fills the fields of Form6 anew from the element in hand; no tool hears of it.
  void refill() { selection_.refill(); }

private:
  State& state_;
  const Platform& platform_;
  Selection selection_;
  Dragging dragging_;
  Attachment canvasClicks_;
  Attachment sampleClicks_;
};

}  // namespace veneerer
