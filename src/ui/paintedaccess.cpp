#include "ui/paintedaccess.h"

#include <QAbstractButton>
#include <QAccessibleWidget>

namespace veneerer {

namespace {

class PaintedAccess : public QAccessibleWidget {
public:
  explicit PaintedAccess(QAbstractButton& button) : QAccessibleWidget(&button, QAccessible::Button) {}

  QStringList actionNames() const override {
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& name) override {
    if (name != pressAction()) return QAccessibleWidget::doAction(name);
    if (widget()->isEnabled()) static_cast<QAbstractButton*>(widget())->click();
  }
};

// The toolkit knows its own buttons before it comes to their common kind.
QAccessibleInterface* makeAccess(const QString& className, QObject* object) {
  if (className != QLatin1String("QAbstractButton")) return nullptr;
  return new PaintedAccess(*static_cast<QAbstractButton*>(object));
}

}  // namespace

void exposePaintedControls() {
  QAccessible::installFactory(makeAccess);
}

}  // namespace veneerer
