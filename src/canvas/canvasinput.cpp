#include "canvas/canvasinput.h"

#include "canvas/buttonpicture.h"

namespace veneerer {

CanvasInput::CanvasInput(State& state, Dialogs& dialogs)
    : state_(state), dialogs_(dialogs), selection_(state), dragging_(state) {
  const auto click = [this](Element& element) { selection_.click(element); };
  canvasClicks_ = state.board.onClickWithin(state.form1, click);
  sampleClicks_ = state.board.onClickWithin(state.form6, click);
}

void CanvasInput::press(Element& element, float x, float y, MouseButton button) {
  dragging_.press(element, x, y, button);
  if (button == MouseButton::Right && takesChosenPicture(state_, element))
    choosePicture(state_, dialogs_, element);
}

}  // namespace veneerer
