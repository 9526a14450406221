#include "elements/window.h"

#include "elements/family.h"

namespace veneerer {

Window::Window(ChangeNotices& notices, const char* name)
    : Element(Kind::Window, *this, nullptr, -1), name_(QString::fromLatin1(name)), notices_(notices) {}

void Window::add(Family& family) {
  require(!byName_.contains(family.name()), "two families of one window share a name");
  families_.push_back(&family);
  byName_.insert(family.name(), &family);
}

}  // namespace veneerer
