#include "canvas/canvasinput.h"

#include "canvas/buttonpicture.h"

namespace veneerer {

void CanvasInput::press(Element& element, float x, float y, MouseButton button) {
  dragging_.press(element, x, y, button);
  if (button == MouseButton::Right && takesChosenPicture(state_, element))
    choosePicture(state_, dialogs_, element);
}

}  // namespace veneerer
