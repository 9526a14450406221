#include "records/layout.h"

#include <algorithm>
#include <span>

namespace veneerer {

template <class Content>
Content& Layout::add(Content content) {
  rows_.push_back({std::move(content), nextStartsBlock_, isOptional_});
  nextStartsBlock_ = false;
  return std::get<Content>(rows_.back().content);
}

void Layout::literal(const QString& text) {
  add(Literal{text});
}

void Layout::labelLine(const char* prefix, const Element& captionOf) {
  labelLine(QString::fromLatin1(prefix), captionOf);
}

void Layout::labelLine(const QString& prefix, const Element& captionOf) {
  add(Literal{prefix, &captionOf});
}

Field& Layout::field(ValueKind kind, Element& element, Property property) {
  require(element.has(property), "a record row names a property that its element doesn't have");
  const Slot slot{&element, property};
  return add(Field{kind, slot, slot});
}

void Layout::versionTag(int number) {
  literal("INI Version");
  add(Counter{.name = "version", .newest = number});
}

void Layout::counter(CoverIndex& number, const char* name, int (*intoRange)(double)) {
  add(Counter{.name = name, .kept = &number, .intoRange = intoRange});
}

void Layout::reference(ImageSlot& kept, const std::vector<Element*>& boxes) {
  Reference reference{&kept, &kept};
  require(boxes.size() <= reference.boxes.size(), "an image reference is shown in too many elements");
  std::ranges::copy(boxes, reference.boxes.begin());
  add(reference);
}

Reference& Layout::buttonImage(Button& button) {
  ImageSlot* kept = state_.names.of(button);
  require(kept != nullptr, "a record row names a button that keeps no image name");
  return add(Reference{kept, kept, &button});
}

void Layout::buttonRecord(Button& button) {
  const std::size_t first = size();
  plainButtonRecord(button);
  for (Row* shape : rowsOf(first, {Property::ButtonShape})) std::get<Field>(shape->content).isHeldBack = true;
}

void Layout::plainButtonRecord(Button& button) {
  field(ValueKind::Text, button, Property::Caption);
  for (Property p : {Property::ButtonShape, Property::ButtonStyle, Property::BackColor, Property::ForeColor,
                     Property::GradientColor, Property::GradientMode})
    field(propertyType(p) == ValueType::Colour ? ValueKind::Colour : ValueKind::Long, button, p);
}

void Layout::geometryQuad(Element& element) {
  for (Property p : {Property::Height, Property::Width, Property::Top, Property::Left})
    field(ValueKind::Single, element, p);
}

void Layout::placeQuad(Element& element) {
  for (Property p : {Property::Top, Property::Left, Property::Height, Property::Width})
    field(ValueKind::Single, element, p);
}

void Layout::colours(Element& element) {
  field(ValueKind::Colour, element, Property::BackColor);
  field(ValueKind::Colour, element, Property::ForeColor);
}

void Layout::colouredPlace(Element& element) {
  colours(element);
  placeQuad(element);
}

void Layout::labelRecord(Label& label) {
  colouredPlace(label);
  field(ValueKind::Text, label, Property::FontName);
  field(ValueKind::FontSize, label, Property::FontSize);
}

Reference& Layout::geometryButton(Button& button, const char* labelPrefix) {
  return singleButton(button, labelPrefix, &Layout::geometryQuad);
}

Reference& Layout::placedButton(Button& button, const char* labelPrefix) {
  return singleButton(button, labelPrefix, &Layout::placeQuad);
}

Reference& Layout::singleButton(Button& button, const char* labelPrefix, Quad quad) {
  if (labelPrefix) labelLine(labelPrefix, button);
  block();
  buttonRecord(button);
  block();
  (this->*quad)(button);
  block();
  Reference& image = buttonImage(button);
  block();
  return image;
}

void Layout::geometryButtons(Array<Button>& array, int first, int last, const char* labelPrefix) {
  buttons(array, first, last, labelPrefix, &Layout::geometryQuad);
}

void Layout::placedButtons(Array<Button>& array, int first, int last, const char* labelPrefix) {
  buttons(array, first, last, labelPrefix, &Layout::placeQuad);
}

void Layout::buttons(Array<Button>& array, int first, int last, const char* labelPrefix, Quad quad) {
  each(array, first, last, [&](Button& button) {
    if (labelPrefix) labelLine(labelPrefix, button);
    buttonRecord(button);
    (this->*quad)(button);
    buttonImage(button);
  });
}

void Layout::geometryImages(Array<Button>& array, int first, int last) {
  images(array, first, last, &Layout::geometryQuad);
}

void Layout::placeImages(Array<Button>& array, int first, int last) {
  images(array, first, last, &Layout::placeQuad);
}

void Layout::images(Array<Button>& array, int first, int last, Quad quad) {
  each(array, first, last, [&](Button& button) {
    (this->*quad)(button);
    buttonImage(button);
  });
}

void Layout::colouredPlaces(Array<PictureBox>& array, int first, int last) {
  each(array, first, last, [this](PictureBox& box) { colouredPlace(box); });
}

void Layout::labels(Array<Label>& array, int first, int last) {
  each(array, first, last, [this](Label& label) { labelRecord(label); });
}

void Layout::alignedLabels(Array<Label>& array, int first, int last) {
  each(array, first, last, [this](Label& label) {
    labelRecord(label);
    alignment(label);
  });
}

std::vector<Row*> Layout::rowsOf(std::size_t from, std::initializer_list<Property> properties) {
  std::vector<Row*> found;
  for (Row& row : std::span(rows_).subspan(from))
    if (row.field() && std::ranges::find(properties, row.field()->into.property) != properties.end())
      found.push_back(&row);
  return found;
}

void Layout::applyAboveMinusOneOnly(std::size_t from, std::initializer_list<Property> properties) {
  for (Row* row : rowsOf(from, properties)) std::get<Field>(row->content).aboveMinusOneOnly = true;
}

void Layout::needVersion(int version, std::size_t from, std::initializer_list<Property> properties) {
  for (Row* row : rowsOf(from, properties)) row->least = version;
}

void Layout::scaleWholes(std::size_t from, const float& factor) {
  for (Row& row : std::span(rows_).subspan(from))
    if (Field* field = std::get_if<Field>(&row.content); field && field->kind == ValueKind::Whole)
      field->scale = &factor;
}

void Layout::writeFrom(std::size_t from, Button& button, ImageSlot& kept, const char* why) {
  for (Row& row : std::span(rows_).subspan(from)) {
    if (Field* field = std::get_if<Field>(&row.content)) field->from.element = &button;
    if (Reference* reference = std::get_if<Reference>(&row.content)) reference->from = &kept;
    row.why = why;
  }
}

void Layout::writtenOnly(std::size_t from, const char* why) {
  for (Row& row : std::span(rows_).subspan(from)) {
    row.isWrittenOnly = true;
    row.why = why;
  }
}

void Layout::then(Step step) {
  require(!rows_.empty(), "a step follows a row");
  steps_.push_back({rows_.size() - 1, std::move(step)});
}

const Layout::Step* Layout::stepAfter(std::size_t row) const {
  // Few layouts have more than a handful of steps.
  for (const RowStep& step : steps_)
    if (step.row == row) return &step.step;
  return nullptr;
}

}  // namespace veneerer
