#include "components/hittest.h"

#include "elements/family.h"
#include "elements/window.h"

namespace veneerer {

namespace {

bool holds(const Element& element, double x, double y) {
  return x >= element.left() && y >= element.top() && x < double(element.left()) + element.width() &&
         y < double(element.top()) + element.height();
}

// The topmost hit among the children, the point being in the container's coordinates.
Element* childAt(const Element& container, double x, double y) {
  const std::vector<Element*>& children = container.children();
  for (auto at = children.rbegin(); at != children.rend(); ++at) {
    Element& child = **at;
    if (!child.isVisible() || !holds(child, x, y)) continue;
    if (Element* inner = childAt(child, x - child.left(), y - child.top())) return inner;
    if (!isSeeThrough(child)) return &child;
  }
  return nullptr;
}

}  // namespace

bool isSeeThrough(const Element& element) {
  return element.kind() == Kind::PictureBox && element.index() == 0 && element.window().name() == u"Form1" &&
         element.family()->name() == u"Picture1";
}

Element* elementAt(Form1& form, float x, float y) {
  return childAt(form, x, y);
}

QRectF windowRect(const Element& element) {
  double left = 0;
  double top = 0;
  for (const Element* e = &element; e->container(); e = e->container()) {
    left += e->left();
    top += e->top();
  }
  return QRectF(left, top, element.width(), element.height());
}

bool isShown(const Element& element) {
  for (const Element* e = &element; e->container(); e = e->container())
    if (!e->isVisible()) return false;
  return true;
}

}  // namespace veneerer
