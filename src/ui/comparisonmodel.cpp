#include "ui/comparisonmodel.h"

#include <QColor>

#include "canvas/description.h"
#include "comparison/differencewords.h"
#include "elements/printable.h"
#include "ui/plaintext.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

using Told = Difference::Kind;

const std::optional<TextLine>& sideOf(const Difference& difference, int column) {
  return column == ComparisonModel::Before ? difference.before : difference.after;
}

/// Nothing where the side holds no colour.
QVariant swatch(const Difference& difference, int column) {
  const bool isColour = difference.property && propertyType(*difference.property) == ValueType::Colour;
  const std::optional<TextLine>& side = sideOf(difference, column);
  bool isNumber = false;
  const int number = isColour && side ? side->text.trimmed().toInt(&isNumber) : 0;
  return isNumber ? QVariant(Colour(number).toQColor()) : QVariant();
}

QString sideText(const Difference& difference, int column) {
  const bool isBefore = column == ComparisonModel::Before;
  switch (difference.kind) {
    case Told::Line:
      return lineWords(sideOf(difference, column),
                       sideOf(difference, isBefore ? ComparisonModel::After : ComparisonModel::Before));
    case Told::Content:
      return UiTexts::tr("(differs)");
    case Told::OnlyInFirst:
    case Told::OnlyInSecond:
      return isBefore == (difference.kind == Told::OnlyInFirst) ? UiTexts::tr("(the file is there)")
                                                                : UiTexts::tr("(no such file)");
    case Told::Further:
      break;
  }
  return {};
}

}  // namespace

void ComparisonModel::show(const Differences& differences, const QString& first, const QString& second) {
  beginResetModel();
  differences_ = differences;
  sides_[0] = first;
  sides_[1] = second;
  endResetModel();
}

int ComparisonModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(differences_.size());
}

QVariant ComparisonModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  if (section == Before || section == After) return sides_[section - Before];
  const QString titles[] = {UiTexts::tr("Element"), UiTexts::tr("Property"), {}, {},
                            UiTexts::tr("File"),    UiTexts::tr("Line")};
  return titles[section];
}

QVariant ComparisonModel::data(const QModelIndex& index, int role) const {
  // The key for a copy asks even when no row is in hand.
  if (!index.isValid()) return {};
  const Difference& difference = at(index.row());
  const bool isSide = index.column() == Before || index.column() == After;
  if (role == Qt::DecorationRole && isSide) return swatch(difference, index.column());
  if (role == Qt::DisplayRole) return shownText(text(difference, index.column()));
  return role == Qt::ToolTipRole ? plainToolTip(text(difference, index.column())) : QVariant();
}

QString ComparisonModel::text(const Difference& difference, int column) const {
  switch (column) {
    case Element:
      return subject(difference);
    case Property:
      return difference.property ? propertyTitle(*difference.property) : QString();
    case File:
      return difference.file;
    case Line:
      return difference.line > 0 ? QString::number(difference.line) : QString();
    default:
      return sideText(difference, column);
  }
}

QString ComparisonModel::subject(const Difference& difference) const {
  if (difference.kind == Told::Further) return UiTexts::tr("(more isn't told, there is too much)");
  if (difference.kind != Told::Line) return UiTexts::tr("(file)");
  if (difference.element.isEmpty()) return UiTexts::tr("(text)");
  const veneerer::Element* element = state_.find(difference.element);
  return element && element->family() ? elementTitle(state_, *element) : difference.element;
}

}  // namespace veneerer
