#include "records/layout.h"

#include <algorithm>

namespace veneerer {

void Loading::show(const QString& reference, Element& element) const {
  const QString path = folder.resolve(reference);
  if (path.isEmpty()) return;
  const Picture picture = state.pictures.load(path);
  if (!picture.isNull()) element.set(Property::Picture, picture);
}

Row& Layout::add(Row row) {
  row.startsBlock = nextStartsBlock_;
  row.isOptional = isOptional_;
  nextStartsBlock_ = false;
  rows_.push_back(std::move(row));
  return rows_.back();
}

void Layout::literal(const char* text) {
  Row row;
  row.text = QString::fromLatin1(text);
  add(std::move(row));
}

void Layout::labelLine(const char* prefix, const Element& captionOf) {
  labelLine(QString::fromLatin1(prefix), captionOf);
}

void Layout::labelLine(const QString& prefix, const Element& captionOf) {
  Row row;
  row.kind = RowKind::LabelLine;
  row.text = prefix;
  row.from = {const_cast<Element*>(&captionOf), Property::Caption};
  add(std::move(row));
}

void Layout::value(RowKind kind, Element& element, Property property) {
  require(element.has(property), "a record row names a property that its element doesn't have");
  Row row;
  row.kind = kind;
  row.into = row.from = {&element, property};
  add(std::move(row));
}

void Layout::versionTag(int number) {
  literal("INI Version");
  Row row;
  row.kind = RowKind::Version;
  row.number = number;
  add(std::move(row));
}

void Layout::reference(StoredValue& kept, const std::vector<Element*>& boxes) {
  Row row;
  row.kind = RowKind::Stored;
  row.storedInto = row.storedFrom = &kept;
  require(boxes.size() <= row.shown.boxes.size(), "an image reference is shown in too many elements");
  std::copy(boxes.begin(), boxes.end(), row.shown.boxes.begin());
  add(std::move(row));
}

void Layout::global(int& number) {
  Row row;
  row.kind = RowKind::Global;
  row.global = &number;
  add(std::move(row));
}

void Layout::buttonRecord(Button& button) {
  const std::size_t first = size();
  plainButtonRecord(button);
  rows_[first + 1].kind = RowKind::HeldShape;
}

void Layout::plainButtonRecord(Button& button) {
  value(RowKind::Text, button, Property::Caption);
  for (Property p : {Property::ButtonShape, Property::ButtonStyle, Property::BackColor, Property::ForeColor,
                     Property::GradientColor, Property::GradientMode})
    value(RowKind::Long, button, p);
}

void Layout::geometryQuad(Element& element) {
  for (Property p : {Property::Height, Property::Width, Property::Top, Property::Left})
    value(RowKind::Single, element, p);
}

void Layout::placeQuad(Element& element) {
  for (Property p : {Property::Top, Property::Left, Property::Height, Property::Width})
    value(RowKind::Single, element, p);
}

void Layout::colours(Element& element) {
  value(RowKind::Long, element, Property::BackColor);
  value(RowKind::Long, element, Property::ForeColor);
}

void Layout::labelRecord(Label& label) {
  colours(label);
  placeQuad(label);
  value(RowKind::Text, label, Property::FontName);
  value(RowKind::FontSize, label, Property::FontSize);
}

void Layout::buttonImage(Button& button) {
  StoredValue* kept = state_.names.of(button);
  require(kept != nullptr, "a record row names a button that keeps no image name");
  reference(*kept);
  rows_.back().shown.button = &button;
}

void Layout::geometryButton(Button& button) {
  block();
  buttonRecord(button);
  block();
  geometryQuad(button);
  block();
  buttonImage(button);
  block();
}

void Layout::placedButton(Button& button) {
  block();
  buttonRecord(button);
  block();
  placeQuad(button);
  block();
  buttonImage(button);
  block();
}

void Layout::geometryButtons(Array<Button>& array, int first, int last) {
  each(array, first, last, [this](Button& button) {
    buttonRecord(button);
    geometryQuad(button);
    buttonImage(button);
  });
}

void Layout::placedButtons(Array<Button>& array, int first, int last) {
  each(array, first, last, [this](Button& button) {
    buttonRecord(button);
    placeQuad(button);
    buttonImage(button);
  });
}

void Layout::geometryButtons(Array<Button>& array, int first, int last, const char* labelPrefix) {
  each(array, first, last, [&](Button& button) {
    labelLine(labelPrefix, button);
    buttonRecord(button);
    geometryQuad(button);
    buttonImage(button);
  });
}

void Layout::placedButtons(Array<Button>& array, int first, int last, const char* labelPrefix) {
  each(array, first, last, [&](Button& button) {
    labelLine(labelPrefix, button);
    buttonRecord(button);
    placeQuad(button);
    buttonImage(button);
  });
}

void Layout::geometryImages(Array<Button>& array, int first, int last) {
  each(array, first, last, [this](Button& button) {
    geometryQuad(button);
    buttonImage(button);
  });
}

void Layout::placeImages(Array<Button>& array, int first, int last) {
  each(array, first, last, [this](Button& button) {
    placeQuad(button);
    buttonImage(button);
  });
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

void Layout::applyAboveMinusOneOnly(std::size_t from, std::initializer_list<Property> properties) {
  for (std::size_t i = from; i < rows_.size(); ++i)
    if (rows_[i].into.element && std::ranges::find(properties, rows_[i].into.property) != properties.end())
      rows_[i].aboveMinusOneOnly = true;
}

void Layout::writeFrom(std::size_t from, Button& button, StoredValue& kept, const char* why) {
  for (std::size_t i = from; i < rows_.size(); ++i) {
    if (rows_[i].kind == RowKind::Stored)
      rows_[i].storedFrom = &kept;
    else
      rows_[i].from.element = &button;
    rows_[i].why = why;
  }
}

void Layout::writtenOnly(std::size_t from, const char* why) {
  for (std::size_t i = from; i < rows_.size(); ++i) {
    rows_[i].isWrittenOnly = true;
    rows_[i].why = why;
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
