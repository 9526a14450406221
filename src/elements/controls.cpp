#include "elements/controls.h"

#include "elements/family.h"
#include "elements/texts.h"

namespace veneerer {

void RowList::setRows(const QStringList& rows) {
  // Told even when the rows are the same: what shows the list must forget the row that was chosen.
  const Value old = get(Property::List);
  store(Property::ListIndex, -1);
  store(Property::Text, QString());
  store(Property::List, rows);
  notify(Property::List, old);
}

void RowList::addRow(const QString& row) {
  set(Property::List, list() + QStringList{row});
}

QString RowList::rangeFault(Property property, const Value& value) const {
  if (property != Property::ListIndex || hasRow(std::get<std::int32_t>(value))) return {};
  return ElementTexts::tr("the list has no row %1").arg(std::get<std::int32_t>(value));
}

bool RowList::isEvent(Property property) const {
  return property == Property::ListIndex || property == Property::List;
}

void RowList::stored(Property property) {
  if (property == Property::Text)
    store(Property::ListIndex, static_cast<std::int32_t>(list().indexOf(text())));
  if (property == Property::ListIndex)
    store(Property::Text, listIndex() < 0 ? QString() : list().at(listIndex()));
  if (property == Property::List && listIndex() >= list().size()) store(Property::ListIndex, -1);
}

QString CheckBox::rangeFault(Property property, const Value& value) const {
  if (property != Property::Value) return {};
  const int number = std::get<std::int32_t>(value);
  if (number >= 0 && number <= 2) return {};
  return ElementTexts::tr("a check box takes 0, 1 or 2, not %1").arg(number);
}

void OptionButton::select() {
  for (Element* member : family()->members())
    if (member != this) member->set(Property::Value, 0);
  set(Property::Value, 1);
}

}  // namespace veneerer
