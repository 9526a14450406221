#include "elements/element.h"

#include <algorithm>

#include "elements/family.h"
#include "elements/kinds.h"
#include "elements/require.h"
#include "elements/window.h"

namespace veneerer {

Element::Element(Kind kind, Window& window, Family* family, int index)
    : kind_(kind), index_(index), window_(window), family_(family) {
  const auto defaults = propertiesOf(kind);
  values_.reserve(defaults.size());
  for (const PropertyDefault& d : defaults) values_.push_back(d.value);
}

QString Element::key() const {
  if (!family_) return window_.name();
  QString key;
  key.reserve(window_.name().size() + family_->name().size() + 8);
  key.append(window_.name()).append(u'.').append(family_->name());
  if (index_ >= 0) key.append(u'(').append(QString::number(index_)).append(u')');
  return key;
}

int Element::offset(Property property) const {
  return propertyOffset(kind_, property);
}

const Value& Element::get(Property property) const {
  const int at = offset(property);
  require(at >= 0, "the element has no such property");
  return values_[static_cast<std::size_t>(at)];
}

bool Element::set(Property property, Value value) {
  const int at = offset(property);
  require(at >= 0, "the element has no such property");
  const Value& stored = values_[static_cast<std::size_t>(at)];
  require(typeOf(value) == propertyType(property), "the value is not of the property's type");
  if (stored == value && !isEvent(property)) return false;
  const QString words = refusal(property, value);
  const bool isAccepted = accepts(property, value);
  if (isAccepted) {
    const Value old = replace(property, std::move(value));
    this->stored(property);
    notify(property, old);
  }
  if (!words.isEmpty()) window_.board().tell(Refusal{*this, property, words});
  return isAccepted;
}

void Element::restore(Property property, Value value) {
  require(typeOf(value) == propertyType(property), "the value is not of the property's type");
  const ViewsOnly views(window_.board());
  const Value old = replace(property, std::move(value));
  notify(property, old);
}

void Element::place(float left, float top, float width, float height) {
  setLeft(left);
  setTop(top);
  setWidth(width);
  setHeight(height);
}

void Element::setContainer(Element& container) {
  if (container_) std::erase(container_->children_, this);
  container_ = &container;
  container.children_.push_back(this);
}

int Element::stackOrder() const {
  if (!container_) return -1;
  const std::vector<Element*>& order = container_->children_;
  return static_cast<int>(std::ranges::find(order, this) - order.begin());
}

void Element::setStackOrder(int place) {
  const int before = stackOrder();
  if (before == place) return;
  std::vector<Element*>& order = container_->children_;
  require(place >= 0 && place < static_cast<int>(order.size()), "elements are stacked among their siblings");
  window_.board().record({*this, Property::StackOrder, Value(before)});
  order.erase(order.begin() + before);
  order.insert(order.begin() + place, this);
  notify(Property::StackOrder, Value(before));
}

void Element::bringToFront() {
  if (container_) setStackOrder(static_cast<int>(container_->children_.size()) - 1);
}

void Element::sendToBack() {
  if (container_) setStackOrder(0);
}

void Element::stackAbove(Element& sibling) {
  restack(sibling, 1);
}

void Element::stackBelow(Element& sibling) {
  restack(sibling, 0);
}

void Element::restack(Element& sibling, int shift) {
  require(container_ && sibling.container_ == container_ && &sibling != this,
          "elements are stacked among their siblings");
  const int place = sibling.stackOrder();
  // Taking the element out moves what lies above it down by one.
  setStackOrder(place + shift - (stackOrder() < place ? 1 : 0));
}

QString Element::refusal(Property, const Value&) const {
  return {};
}

QString Element::rangeFault(Property, const Value&) const {
  return {};
}

bool Element::accepts(Property property, const Value& value) const {
  return rangeFault(property, value).isEmpty();
}

bool Element::isEvent(Property) const {
  return false;
}

void Element::stored(Property) {}

Value Element::replace(Property property, Value value) {
  Value old = std::exchange(values_[static_cast<std::size_t>(offset(property))], std::move(value));
  window_.board().record({*this, property, old});
  return old;
}

void Element::store(Property property, Value value) {
  replace(property, std::move(value));
}

void Element::notify(Property property, const Value& oldValue) {
  window_.board().tell({*this, property, oldValue});
}

}  // namespace veneerer
