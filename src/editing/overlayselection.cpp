#include "editing/overlayselection.h"

#include <algorithm>

namespace veneerer {

bool OverlaySelection::contains(const Element& element) const {
  return std::ranges::find(elements_, &element) != elements_.end();
}

void OverlaySelection::select(std::vector<Element*> elements) {
  if (elements == elements_) return;
  elements_ = std::move(elements);
  tell();
}

void OverlaySelection::keepOnly(const std::function<bool(const Element&)>& passes) {
  if (std::erase_if(elements_, [&](const Element* element) { return !passes(*element); }) > 0) tell();
}

void OverlaySelection::toggle(Element& element) {
  if (std::erase(elements_, &element) == 0) elements_.push_back(&element);
  tell();
}

void OverlaySelection::lock(const Element& element, bool isLocked) {
  if (isLocked)
    locked_.insert(&element);
  else
    locked_.remove(&element);
  tell();
}

void OverlaySelection::tell() const {
  if (listener_) listener_();
}

}  // namespace veneerer
