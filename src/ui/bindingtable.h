// Who shows which element. One subscription serves all windows, so that a load with its thousands of changes
// pays one look-up for each, however many controls there are.
#pragma once

#include <QMultiHash>
#include <QWidget>

#include "elements/element.h"

namespace veneerer {

class BindingTable;

/// Ties an element to the widget that shows it, for as long as the widget lives.
class Binding : public QObject {
public:
  ~Binding() override;

  const Element& element() const { return element_; }
  /// Brings the widget up to date after a change of that property. The element counts, not the notice: other
  /// listeners may have changed it again meanwhile.
  virtual void show(Property changed) = 0;

protected:
  Binding(BindingTable& table, const Element& element, QWidget& widget);

private:
  BindingTable& table_;
  const Element& element_;
};

/// Must outlive the windows.
class BindingTable {
public:
  explicit BindingTable(ChangeNotices& notices);
  ~BindingTable();
  BindingTable(const BindingTable&) = delete;
  BindingTable& operator=(const BindingTable&) = delete;

private:
  friend class Binding;

  ChangeNotices& notices_;
  int subscription_;
  QMultiHash<const Element*, Binding*> bindings_;
};

}  // namespace veneerer
