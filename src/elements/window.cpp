#include "elements/window.h"

#include "elements/family.h"

namespace veneerer {

Window::Window(Switchboard& board, const char* name)
    : Element(Kind::Window, *this, nullptr, -1), name_(QString::fromLatin1(name)), board_(board) {}

void Window::add(Family& family) {
  require(!byName_.contains(family.name()), "two families of one window share a name");
  families_.push_back(&family);
  byName_.insert(family.name(), &family);
}

}  // namespace veneerer
