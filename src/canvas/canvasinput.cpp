#include "canvas/canvasinput.h"

#include "canvas/buttonpicture.h"

namespace veneerer {

CanvasInput::CanvasInput(State& state, const Platform& platform)
    : state_(state), platform_(platform), selection_(state), dragging_(state) {
  const auto click = [this](Element& element) { selection_.click(element); };
  canvasClicks_ = state.board.onClickWithin(state.form1, click);
  sampleClicks_ = state.board.onClickWithin(state.form6, click);
}

void CanvasInput::press(Element& element, float x, float y, MouseButton button) {
  dragging_.press(element, x, y, button);
  if (button == MouseButton::Right && takesChosenPicture(state_, element))
    choosePicture(state_, platform_, element);
}

}  // namespace veneerer
