#include "ui/binding.h"

#include "elements/window.h"

namespace veneerer {

Binding::Binding(const Element& element, QWidget& widget) : Binding(element, static_cast<QObject*>(&widget)) {
  widget.setObjectName(element.key());
}

Binding::Binding(const Element& element, QObject* owner)
    : QObject(owner),
      element_(element),
      attachment_(
          element.window().board().watch(element, [this](const Change& change) { show(change.property); })) {}

}  // namespace veneerer
