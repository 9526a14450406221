#include "elements/family.h"

#include "elements/window.h"

namespace veneerer {

Family::Family(Window& window, QString name, bool isArray)
    : name_(std::move(name)), window_(window), isArray_(isArray) {
  window.add(*this);
}

Element* Family::find(int index) const {
  if (!isArray_ && index == -1) index = 0;
  if (index < 0 || index >= bound()) return nullptr;
  return byIndex_[static_cast<std::size_t>(index)].get();
}

void Family::add(std::unique_ptr<Element> element, int index) {
  require(index >= bound(), "members are added in index order");
  byIndex_.resize(static_cast<std::size_t>(index) + 1);
  members_.push_back(element.get());
  byIndex_.back() = std::move(element);
}

}  // namespace veneerer
