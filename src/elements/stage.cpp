#include "elements/stage.h"

#include <algorithm>

namespace veneerer {

bool isShownOn(const Stage& stage, const Element& element) {
  const Element* top = &element;
  while (top->container() && top->container()->container()) {
    if (!top->isVisible()) return false;
    top = top->container();
  }
  return std::ranges::find(stage, top) != stage.end();
}

}  // namespace veneerer
