#include "ui/bindingtable.h"

namespace veneerer {

Binding::Binding(BindingTable& table, const Element& element, QWidget& widget)
    : Binding(table, element, static_cast<QObject*>(&widget)) {
  widget.setObjectName(element.key());
}

Binding::Binding(BindingTable& table, const Element& element, QObject* owner)
    : QObject(owner), table_(table), element_(element) {
  table_.bindings_.insert(&element, this);
}

Binding::~Binding() {
  table_.bindings_.remove(&element_, this);
}

BindingTable::BindingTable(ChangeNotices& notices) : notices_(notices) {
  subscription_ = notices.subscribe([this](const Change& change) {
    const auto [first, last] = std::as_const(bindings_).equal_range(&change.element);
    for (auto binding = first; binding != last; ++binding) (*binding)->show(change.property);
  });
}

BindingTable::~BindingTable() {
  notices_.unsubscribe(subscription_);
}

}  // namespace veneerer
