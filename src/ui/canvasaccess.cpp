#include "ui/canvasaccess.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>
#include <QWindow>

#include "canvas/description.h"
#include "canvas/sections.h"
#include "editing/outline.h"
#include "ui/canvaswidget.h"

namespace veneerer {

namespace {

// What the keys have led to: what was selected last, else what is in hand.
Element* marked(CanvasWidget& canvas) {
  const std::vector<Element*>& selected = canvas.hands().overlay().elements();
  Element* element = selected.empty() ? currentElement(canvas.hands().state()) : selected.back();
  return element && &element->window() == &canvas.hands().state().form1 ? element : nullptr;
}

/// One element. The elements stay as long as the program; the canvas may go first.
class ElementAccess : public QAccessibleInterface, public QAccessibleActionInterface {
public:
  ElementAccess(CanvasWidget& canvas, Element& element) : canvas_(&canvas), element_(element) {}

  bool isValid() const override { return !canvas_.isNull(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return canvas_ ? canvas_->window()->windowHandle() : nullptr; }
  QAccessibleInterface* parent() const override {
    return canvas_ ? QAccessible::queryAccessibleInterface(canvas_) : nullptr;
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QString text(QAccessible::Text text) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }

  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
  QPointer<CanvasWidget> canvas_;
  Element& element_;
};

QString ElementAccess::text(QAccessible::Text text) const {
  if (!canvas_) return {};
  Operator& hands = canvas_->hands();
  if (text == QAccessible::Name) return elementTitle(hands.state(), element_);
  if (text == QAccessible::Description) return describe(hands.state(), element_, hands.screen());
  return {};
}

QRect ElementAccess::rect() const {
  if (!canvas_) return {};
  const QRect place = canvas_->placeOf(element_);
  return QRect(canvas_->mapToGlobal(place.topLeft()), place.size());
}

QAccessible::Role ElementAccess::role() const {
  switch (element_.kind()) {
    case Kind::Button:
      return QAccessible::Button;
    case Kind::Label:
      return QAccessible::StaticText;
    default:
      return QAccessible::Graphic;
  }
}

QAccessible::State ElementAccess::state() const {
  QAccessible::State state;
  state.invalid = canvas_.isNull();
  if (!canvas_) return state;
  state.invisible = !isShown(element_) || !canvas_->isVisible();
  state.offscreen = !canvas_->visibleRegion().intersects(canvas_->placeOf(element_));
  state.selectable = true;
  state.selected = canvas_->hands().overlay().contains(element_);
  state.focusable = true;
  state.focused = canvas_->hasFocus() && marked(*canvas_) == &element_;
  return state;
}

QStringList ElementAccess::actionNames() const {
  return canvas_ && isShown(element_) ? QStringList{pressAction()} : QStringList();
}

void ElementAccess::doAction(const QString& name) {
  if (!actionNames().contains(name) || canvas_->hands().isActing()) return;
  canvas_->hands().click(element_);
}

class CanvasAccess : public QAccessibleWidget {
public:
  explicit CanvasAccess(CanvasWidget& canvas) : QAccessibleWidget(&canvas, QAccessible::Canvas) {
    for (const OutlineEntry& entry : outlineOf(canvas.hands().state())) elements_.append(entry.element);
    ids_.resize(elements_.size());
  }
  ~CanvasAccess() override {
    for (const QAccessible::Id id : ids_)
      if (id != 0) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return static_cast<int>(elements_.size()); }
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;
  QAccessibleInterface* of(const Element* element) const {
    return child(static_cast<int>(elements_.indexOf(element)));
  }

private:
  CanvasWidget& canvas() const { return *static_cast<CanvasWidget*>(widget()); }

  QList<Element*> elements_;
  mutable QList<QAccessible::Id> ids_;  ///< 0 for a child that nobody has asked for
};

QAccessibleInterface* CanvasAccess::child(int index) const {
  if (index < 0 || index >= childCount() || !isValid()) return nullptr;
  QAccessible::Id& id = ids_[index];
  if (id == 0) id = QAccessible::registerAccessibleInterface(new ElementAccess(canvas(), *elements_[index]));
  return QAccessible::accessibleInterface(id);
}

int CanvasAccess::indexOfChild(const QAccessibleInterface* child) const {
  return static_cast<int>(ids_.indexOf(QAccessible::uniqueId(const_cast<QAccessibleInterface*>(child))));
}

QAccessibleInterface* CanvasAccess::childAt(int x, int y) const {
  return isValid() ? of(canvas().elementAt(canvas().mapFromGlobal(QPoint(x, y)))) : nullptr;
}

QAccessibleInterface* CanvasAccess::focusChild() const {
  QAccessibleInterface* child = isValid() && canvas().hasFocus() ? of(marked(canvas())) : nullptr;
  return child ? child : QAccessibleWidget::focusChild();
}

QAccessibleInterface* makeAccess(const QString&, QObject* object) {
  auto* canvas = qobject_cast<CanvasWidget*>(object);
  return canvas ? new CanvasAccess(*canvas) : nullptr;
}

}  // namespace

void exposeCanvases() {
  QAccessible::installFactory(makeAccess);
}

void tellSelected(CanvasWidget& canvas) {
  if (!QAccessible::isActive() || !canvas.hasFocus()) return;
  const QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&canvas);
  QAccessibleInterface* child = access ? access->focusChild() : nullptr;
  if (!child) return;
  QAccessibleEvent event(child, QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
}

}  // namespace veneerer
