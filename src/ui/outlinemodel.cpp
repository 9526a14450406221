#include "ui/outlinemodel.h"

#include <QPalette>
#include <algorithm>

#include "painting/hittest.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

// A row of a screen has no parent; that of an element bears the screen's row, counted from 1.
quintptr idOf(int screen) {
  return static_cast<quintptr>(screen) + 1;
}

}  // namespace

OutlineModel::OutlineModel(State& state) : state_(state) {
  readAnew();
}

void OutlineModel::search(const QString& query) {
  words_ = queryWords(query);
  beginResetModel();
  screens_ = found(entries_);
  endResetModel();
}

void OutlineModel::readAnew() {
  std::vector<OutlineEntry> read = outlineOf(state_);
  std::vector<Screen> screens = found(read);
  const bool hasSameRows =
      screens == screens_ &&
      std::ranges::equal(read, entries_, {}, &OutlineEntry::element, &OutlineEntry::element);
  if (hasSameRows)
    Q_EMIT layoutAboutToBeChanged();
  else
    beginResetModel();
  entries_ = std::move(read);
  screens_ = std::move(screens);
  if (hasSameRows)
    Q_EMIT layoutChanged();
  else
    endResetModel();
}

std::vector<OutlineModel::Screen> OutlineModel::found(const std::vector<OutlineEntry>& entries) const {
  std::vector<Screen> screens;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (!matches(entries[i], words_)) continue;
    if (screens.empty() || screens.back().name != entries[i].screen)
      screens.push_back({entries[i].screen, {}});
    screens.back().entries.push_back(i);
  }
  return screens;
}

const OutlineEntry& OutlineModel::entryAt(const QModelIndex& index) const {
  const Screen& screen = screens_[index.internalId() - 1];
  return entries_[screen.entries[static_cast<std::size_t>(index.row())]];
}

Element* OutlineModel::elementAt(const QModelIndex& index) const {
  return index.isValid() && index.internalId() != 0 ? entryAt(index).element : nullptr;
}

QModelIndex OutlineModel::indexOf(const Element& element) const {
  for (std::size_t s = 0; s < screens_.size(); ++s)
    for (std::size_t i = 0; i < screens_[s].entries.size(); ++i)
      if (entries_[screens_[s].entries[i]].element == &element)
        return createIndex(static_cast<int>(i), 0, idOf(static_cast<int>(s)));
  return {};
}

QModelIndex OutlineModel::index(int row, int column, const QModelIndex& parent) const {
  if (!hasIndex(row, column, parent)) return {};
  return createIndex(row, column, parent.isValid() ? idOf(parent.row()) : 0);
}

QModelIndex OutlineModel::parent(const QModelIndex& index) const {
  if (!index.isValid() || index.internalId() == 0) return {};
  return createIndex(static_cast<int>(index.internalId()) - 1, 0, quintptr(0));
}

int OutlineModel::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return static_cast<int>(screens_.size());
  if (parent.internalId() != 0 || parent.column() > 0) return 0;
  return static_cast<int>(screens_[static_cast<std::size_t>(parent.row())].entries.size());
}

QVariant OutlineModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  const QString titles[] = {UiTexts::tr("Element"), UiTexts::tr("Name"), UiTexts::tr("Section")};
  return titles[section];
}

QVariant OutlineModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (index.internalId() == 0) {
    const bool isText = role == Qt::DisplayRole && index.column() == Title;
    return isText ? QVariant(screens_[static_cast<std::size_t>(index.row())].name) : QVariant();
  }
  const OutlineEntry& entry = entryAt(index);
  if (role == Qt::ForegroundRole && !entry.element->isVisible())
    return QPalette().brush(QPalette::Disabled, QPalette::Text);
  if (role != Qt::DisplayRole) return {};
  if (index.column() == Title) return entry.title;
  if (index.column() == Key) return entry.key;
  return entry.section > 0 ? QVariant(entry.section) : QVariant();
}

}  // namespace veneerer
