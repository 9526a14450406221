#include "ui/operator.h"

namespace veneerer {

void Operator::click(Element& element) {
  designer_.click(element);
  Q_EMIT acted();
}

void Operator::press(Element& element, float x, float y, MouseButton button) {
  designer_.press(element, x, y, button);
  Q_EMIT acted();
}

void Operator::move(Element& element, float x, float y, MouseButton button) {
  designer_.move(element, x, y, button);
  Q_EMIT acted();
}

void Operator::doubleClick(Element& element) {
  designer_.doubleClick(element);
  Q_EMIT acted();
}

void Operator::chooseSkin() {
  designer_.openChooser();
  Q_EMIT acted();
}

void Operator::fillFonts() {
  designer_.fillFonts();
}

}  // namespace veneerer
