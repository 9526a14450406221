#include "ui/inspectormodel.h"

#include <algorithm>

#include "canvas/description.h"
#include "elements/printable.h"
#include "ui/colourmenu.h"
#include "ui/plaintext.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

constexpr int kChip = 14;  // device-independent pixels

}  // namespace

void InspectorModel::inspect(const std::vector<Element*>& elements) {
  if (elements == elements_) return refresh();
  beginResetModel();
  elements_ = elements;
  properties_ = inspectedProperties(elements);
  endResetModel();
}

void InspectorModel::refresh() {
  if (!properties_.empty()) Q_EMIT dataChanged(index(0, Text), index(rowCount() - 1, Place));
}

void InspectorModel::set(Property property, const Value& value) {
  hands_.set(elements_, property, value);
}

int InspectorModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(properties_.size());
}

QVariant InspectorModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  const QString titles[] = {UiTexts::tr("Property"), UiTexts::tr("Value"), UiTexts::tr("Pixels"),
                            UiTexts::tr("Line")};
  return titles[section];
}

const Element& InspectorModel::holderOf(Property property) const {
  return **std::ranges::find_if(elements_, [&](const Element* element) { return element->has(property); });
}

bool InspectorModel::isMixed(Property property) const {
  const Value& first = valueOf(property);
  return std::ranges::any_of(elements_, [&](const Element* element) {
    return element->has(property) && element->get(property) != first;
  });
}

QString InspectorModel::textAt(const QModelIndex& index) const {
  const Property property = propertyAt(index.row());
  if (index.column() == Name) return propertyTitle(property);
  const Element& element = holderOf(property);
  if (index.column() == Place) {
    const std::optional<RecordPlace> place = hands_.places().of(element, property);
    return place ? QStringLiteral("%1:%2").arg(place->file).arg(place->line) : QString();
  }
  const QString pixels = pixelText(element, property, hands_.screen());
  if (index.column() == Pixels && pixels.isEmpty()) return {};
  if (isMixed(property)) return UiTexts::tr("(several)");
  return index.column() == Text ? withinSkin(property, valueText(element.get(property))) : pixels;
}

// The path of a picture inside the Skin is told from the Skin's folder on.
QString InspectorModel::withinSkin(Property property, const QString& text) const {
  const QString folder = hands_.skinFolder().path();
  const bool isInside = propertyType(property) == ValueType::Picture && text.startsWith(folder + u'/');
  return isInside ? text.mid(folder.size()) : text;
}

QVariant InspectorModel::data(const QModelIndex& index, int role) const {
  // The key for a copy asks even when no row is in hand.
  if (!index.isValid()) return {};
  const Property property = propertyAt(index.row());
  if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole) return shownText(textAt(index));
  if (role == Qt::EditRole) return isMixed(property) ? QString() : textAt(index);
  if (role == Qt::ToolTipRole) return plainToolTip(textAt(index));
  const bool isColour = propertyType(property) == ValueType::Colour;
  if (role == Qt::DecorationRole && index.column() == Text && isColour && !isMixed(property))
    return colourChip(std::get<Colour>(valueOf(property)).toQColor(), kChip);
  return {};
}

Qt::ItemFlags InspectorModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return {};
  Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
  const Property property = propertyAt(index.row());
  const ValueType type = propertyType(property);
  const bool canBeTyped = type != ValueType::Picture && type != ValueType::Stored && type != ValueType::Texts;
  const bool hasPixels = !pixelText(holderOf(property), property, hands_.screen()).isEmpty();
  if ((index.column() == Text && canBeTyped) || (index.column() == Pixels && hasPixels))
    flags |= Qt::ItemIsEditable;
  return flags;
}

bool InspectorModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole) return false;
  const QString text = value.toString();
  // What wasn't typed over is kept to the last digit.
  if (text == data(index, Qt::EditRole).toString()) return false;
  const Property property = propertyAt(index.row());
  const std::optional<Value> typed =
      index.column() == Text ? typedValue(property, text) : typedPixels(property, text, hands_.screen());
  if (typed) set(property, *typed);
  return typed.has_value();
}

}  // namespace veneerer
