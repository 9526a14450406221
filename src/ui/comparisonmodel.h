// What differs, a row for each line or file.
#pragma once

#include <QAbstractTableModel>

#include "comparison/comparison.h"

namespace veneerer {

class ComparisonModel : public QAbstractTableModel {
public:
  enum Column { Element, Property, Before, After, File, Line };
  static constexpr int kColumns = Line + 1;

  /// Elements are named as the state has them at the time.
  explicit ComparisonModel(State& state) : state_(state) {}

  /// The names of the two sides head their columns.
  void show(const Differences& differences, const QString& first, const QString& second);
  const Difference& at(int row) const { return differences_.at(row); }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : kColumns; }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  QVariant data(const QModelIndex& index, int role) const override;

private:
  QString text(const Difference& difference, int column) const;
  QString subject(const Difference& difference) const;

  State& state_;
  Differences differences_;
  QString sides_[2];
};

}  // namespace veneerer
