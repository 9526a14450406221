// The rows of the inspector.
#pragma once

#include <QAbstractTableModel>

#include "editing/inspection.h"
#include "ui/operator.h"

namespace veneerer {

/// One row for each property that any of the elements has. A value that differs among those is told so; what
/// is typed goes to all that have the property.
class InspectorModel : public QAbstractTableModel {
public:
  enum Column { Name, Text, Pixels, Place };
  static constexpr int kColumns = Place + 1;

  explicit InspectorModel(Operator& hands) : hands_(hands) {}

  void inspect(const std::vector<Element*>& elements);
  /// The values may have changed, the elements are the same.
  void refresh();
  const std::vector<Element*>& elements() const { return elements_; }
  Property propertyAt(int row) const { return properties_[static_cast<std::size_t>(row)]; }
  /// That of the first element that has the property, which one of them must.
  const Value& valueOf(Property property) const { return holderOf(property).get(property); }
  /// Sets the property of all elements to that value.
  void set(Property property, const Value& value);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& = {}) const override { return kColumns; }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
  const Element& holderOf(Property property) const;
  bool isMixed(Property property) const;
  QString textAt(const QModelIndex& index) const;
  QString withinSkin(Property property, const QString& text) const;

  Operator& hands_;
  std::vector<Element*> elements_;
  std::vector<Property> properties_;
};

}  // namespace veneerer
