// All elements of the canvas by screen, as far as a search finds them.
#pragma once

#include <QAbstractItemModel>
#include <vector>

#include "editing/outline.h"

namespace veneerer {

class OutlineModel : public QAbstractItemModel {
public:
  enum Column { Title, Key, Section };
  static constexpr int kColumns = Section + 1;

  explicit OutlineModel(State& state);

  /// Shows what matches the query, all without one.
  void search(const QString& query);
  /// Titles may have changed. The rows stay what they are unless other elements are found.
  void readAnew();

  /// Null for a row that stands for a screen.
  Element* elementAt(const QModelIndex& index) const;
  QModelIndex indexOf(const Element& element) const;

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& = {}) const override { return kColumns; }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  QVariant data(const QModelIndex& index, int role) const override;

private:
  struct Screen {
    QString name;
    std::vector<std::size_t> entries;  ///< those that are found
    bool operator==(const Screen&) const = default;
  };

  std::vector<Screen> found(const std::vector<OutlineEntry>& entries) const;
  const OutlineEntry& entryAt(const QModelIndex& index) const;

  State& state_;
  QStringList words_;
  std::vector<OutlineEntry> entries_;
  std::vector<Screen> screens_;
};

}  // namespace veneerer
