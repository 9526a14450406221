#include "painting/hittest.h"

#include "elements/family.h"
#include "elements/window.h"
#include "painting/buttonoutline.h"
#include "painting/scaledimages.h"

namespace veneerer {

namespace {

bool holds(const Element& element, double x, double y) {
  return x >= element.left() && y >= element.top() && x < double(element.left()) + element.width() &&
         y < double(element.top()) + element.height();
}

}  // namespace

bool isSeeThrough(const Element& element) {
  return element.kind() == Kind::PictureBox && element.index() == 0 && element.window().name() == u"Form1" &&
         element.family()->name() == u"Picture1";
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

Element* HitTest::elementAt(const Form1& form, float x, float y) const {
  return childAt(form, x, y);
}

Element* HitTest::elementAt(const Stage& stage, float x, float y) const {
  for (auto at = stage.rbegin(); at != stage.rend(); ++at)
    if (Element* found = within(**at, x, y)) return found;
  return nullptr;
}

// The topmost hit among the children, the point being in the container's coordinates.
Element* HitTest::childAt(const Element& container, double x, double y) const {
  const std::vector<Element*>& children = container.children();
  for (auto at = children.rbegin(); at != children.rend(); ++at) {
    Element* found = (*at)->isVisible() ? within(**at, x, y) : nullptr;
    if (found) return found;
  }
  return nullptr;
}

// The element or what it holds, the point being in the coordinates of the element's container.
Element* HitTest::within(Element& element, double x, double y) const {
  if (!holds(element, x, y)) return nullptr;
  const double innerX = x - element.left();
  const double innerY = y - element.top();
  if (Element* inner = childAt(element, innerX, innerY)) return inner;
  return !isSeeThrough(element) && meets(element, innerX, innerY) ? &element : nullptr;
}

// The point is in the element's own coordinates and within its rectangle.
bool HitTest::meets(const Element& element, double x, double y) const {
  const std::optional<QRectF> painted = pixelRect(element, QPointF(), scale_);
  if (!painted) return false;
  const QRectF rect(QPointF(), painted->size());
  const QPointF at(x * scale_.x, y * scale_.y);
  switch (element.kind()) {
    case Kind::Button:
      return isSeenAt(cast<Button>(element), rect.size(), at, cutOuts_);
    case Kind::AnimatedFrame:
      return isSeenAt(element.as<Picture>(Property::Picture).shown(rect.size().toSize()), rect, at);
    case Kind::AlphaImage: {
      const Picture& picture = element.as<Picture>(Property::Picture);
      const QImage image = picture.shown(rect.size().toSize());
      return !image.isNull() && isSeenAt(image, fitted(picture.size(), rect), at);
    }
    default:
      return true;
  }
}

}  // namespace veneerer
