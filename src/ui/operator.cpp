#include "ui/operator.h"

#include <chrono>

namespace veneerer {

Operator::Operator(Designer& designer) : designer_(designer) {
  rest_.setSingleShot(true);
  rest_.setInterval(std::chrono::seconds(2));
  connect(&rest_, &QTimer::timeout, this, &Operator::release);
  designer.overlay().setListener([this] { Q_EMIT selected(); });
  connect(&designer.history().stack(), &QUndoStack::indexChanged, this, &Operator::acted);
}

Operator::~Operator() {
  designer_.overlay().setListener({});
}

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

void Operator::type(Element& field, const QString& text) {
  designer_.type(field, text);
  rest_.start();
  Q_EMIT acted();
}

void Operator::choose(RowList& list, int row) {
  designer_.choose(list, row);
  Q_EMIT acted();
}

void Operator::chooseTwice(RowList& list, int row) {
  designer_.chooseTwice(list, row);
  Q_EMIT acted();
}

void Operator::tick(CheckBox& box, int value) {
  designer_.tick(box, value);
  Q_EMIT acted();
}

void Operator::set(const std::vector<Element*>& elements, Property property, const Value& value) {
  designer_.setProperty(elements, property, value);
  Q_EMIT acted();
}

void Operator::copyLook(const Element& from, const std::vector<Element*>& to) {
  designer_.copyLook(from, to);
  Q_EMIT acted();
}

void Operator::align(Line line) {
  designer_.align(line);
  Q_EMIT acted();
}

void Operator::distribute(Along along) {
  designer_.distribute(along);
  Q_EMIT acted();
}

void Operator::makeSameSize(Sides sides) {
  designer_.makeSameSize(sides);
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
