// Who shows which element.
#pragma once

#include <QWidget>
#include <functional>

#include "elements/element.h"

namespace veneerer {

/// Ties an element to the widget that shows it, for as long as the widget lives. The state must outlive it.
class Binding : public QObject {
public:
  const Element& element() const { return element_; }
  /// Brings the widget up to date after a change of that property. The element counts, not the notice: other
  /// listeners may have changed it again meanwhile.
  virtual void show(Property changed) = 0;

protected:
  /// The widget takes the element's name.
  Binding(const Element& element, QWidget& widget);
  /// For one that only watches: the owner, whose life it shares, keeps its own name.
  Binding(const Element& element, QObject* owner);

private:
  const Element& element_;
  Attachment attachment_;
};

/// Does something after each change of an element.
class Watch : public Binding {
public:
  Watch(const Element& element, QObject* owner, std::function<void()> act)
      : Binding(element, owner), act_(std::move(act)) {}
  void show(Property) override { act_(); }

private:
  std::function<void()> act_;
};

}  // namespace veneerer
