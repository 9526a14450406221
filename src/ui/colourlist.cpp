#include "ui/colourlist.h"

#include <QHash>
#include <QHeaderView>

#include "canvas/description.h"
#include "editing/inspection.h"
#include "ui/colourmenu.h"
#include "ui/plaintext.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

enum Column { Has, Uses, Becomes, Columns };

constexpr int kNumber = Qt::UserRole;
constexpr int kChip = 16;      // device-independent pixels
constexpr int kMostTold = 14;  // places in a tool tip

void showColour(QTreeWidgetItem& row, Column column, Colour colour) {
  row.setIcon(column, colourChip(colour.toQColor(), kChip));
  row.setText(column, valueText(colour));
}

Colour colourOf(const QTreeWidgetItem& row) {
  return Colour(row.data(Has, kNumber).toInt());
}

void showMade(QTreeWidgetItem& row, const ColourMap& map) {
  const Colour own = colourOf(row);
  const Colour made = map.of(own);
  if (made != own) return showColour(row, Becomes, made);
  row.setIcon(Becomes, {});
  row.setText(Becomes, {});
}

/// "Fore Colour of Artist (3), History Screen"
QString placeText(const State& state, const ColourPlace& place) {
  const bool isOnCanvas = &place.element->window() == &state.form1;
  return UiTexts::tr("%1 of %2, %3")
      .arg(propertyTitle(place.property), elementTitle(state, *place.element),
           isOnCanvas ? screenName(state, *place.element) : place.element->window().caption());
}

using PlacesByColour = QHash<std::int32_t, std::vector<const ColourPlace*>>;

PlacesByColour byColour(const std::vector<ColourPlace>& places) {
  PlacesByColour sorted;
  for (const ColourPlace& place : places) sorted[place.colour().plain().number()].push_back(&place);
  return sorted;
}

QString whereText(const State& state, const std::vector<const ColourPlace*>& places) {
  QStringList lines;
  for (const ColourPlace* place : places) {
    if (lines.size() == kMostTold) break;
    lines << placeText(state, *place);
  }
  const qsizetype more = std::ssize(places) - lines.size();
  if (more > 0) lines << UiTexts::tr("and %1 more").arg(more);
  return lines.join(QStringLiteral("; "));
}

}  // namespace

ColourList::ColourList(const veneerer::State& skin) : skin_(skin) {
  setColumnCount(Columns);
  setHeaderLabels({tr("Colour"), tr("Uses"), tr("Becomes")});
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  header()->setSectionsMovable(false);
  header()->setStretchLastSection(true);
}

void ColourList::show(const std::vector<ColourPlace>& places, const ColourMap& map) {
  const std::optional<Colour> before = chosen();
  clear();
  const PlacesByColour sorted = byColour(places);
  for (const ColourUse& use : usesOf(places)) {
    auto* row = new QTreeWidgetItem(this);
    row->setData(Has, kNumber, use.colour.number());
    showColour(*row, Has, use.colour);
    row->setText(Uses, QString::number(use.count));
    row->setTextAlignment(Uses, Qt::AlignRight | Qt::AlignVCenter);
    const QString where = plainToolTip(whereText(skin_, sorted.value(use.colour.number())));
    for (const int column : {Has, Uses, Becomes}) row->setToolTip(column, where);
    showMade(*row, map);
    if (before == use.colour) setCurrentItem(row);
  }
  resizeColumnToContents(Has);
  resizeColumnToContents(Uses);
}

void ColourList::showMap(const ColourMap& map) {
  for (int i = 0; i < topLevelItemCount(); ++i) showMade(*topLevelItem(i), map);
}

std::optional<Colour> ColourList::chosen() const {
  const QTreeWidgetItem* row = currentItem();
  return row ? std::optional(colourOf(*row)) : std::nullopt;
}

}  // namespace veneerer
