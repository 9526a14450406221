#include "ui/windowbinding.h"

#include <QCoreApplication>
#include <QEvent>

namespace veneerer {

WindowBinding::WindowBinding(Window& element, QWidget& widget, OnClose onClose)
    : Binding(element, widget), window_(element), widget_(widget), onClose_(onClose) {
  widget.installEventFilter(this);
  if (!element.caption().isEmpty()) show(Property::Caption);
}

void WindowBinding::show(Property changed) {
  if (changed == Property::Visible) showOrHide();
  if (changed == Property::Caption) widget_.setWindowTitle(title_ ? title_() : window_.caption());
}

void WindowBinding::setTitle(std::function<QString()> title) {
  title_ = std::move(title);
  show(Property::Caption);
}

// Where a window stood is forgotten with its frame: one that comes back would slip under the screen's edge.
void WindowBinding::showOrHide() {
  if (!window_.isVisible()) {
    if (widget_.isVisible()) corner_ = widget_.geometry().topLeft();
    return widget_.hide();
  }
  if (beforeFirstShow_) std::exchange(beforeFirstShow_, nullptr)();
  if (corner_ && widget_.isWindow()) widget_.setGeometry(QRect(*corner_, widget_.size()));
  widget_.show();
}

bool WindowBinding::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::Close) return false;
  window_.setVisible(false);
  if (onClose_ == OnClose::EndProgram) QCoreApplication::exit(0);
  return false;
}

}  // namespace veneerer
