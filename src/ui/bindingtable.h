// Who shows which element. One subscription serves all windows, so that a load with its thousands of changes
// pays one look-up for each, however many controls there are.
#pragma once

#include <QMultiHash>
#include <QWidget>
#include <functional>

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
  /// The widget takes the element's name.
  Binding(BindingTable& table, const Element& element, QWidget& widget);
  /// For one that only watches: the owner, whose life it shares, keeps its own name.
  Binding(BindingTable& table, const Element& element, QObject* owner);

private:
  BindingTable& table_;
  const Element& element_;
};

/// Does something after each change of an element.
class Watch : public Binding {
public:
  Watch(BindingTable& table, const Element& element, QObject* owner, std::function<void()> act)
      : Binding(table, element, owner), act_(std::move(act)) {}
  void show(Property) override { act_(); }

private:
  std::function<void()> act_;
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
