// The inspector: every property of what is selected on the overlay, else of the element in hand.
#pragma once

#include <QLabel>
#include <QToolButton>

#include "ui/bindings.h"
#include "ui/inspectormodel.h"

namespace veneerer {

class PropertyTable;

class Inspector : public QWidget {
public:
  explicit Inspector(const Ui& ui);

private:
  void inspect();
  void showColours(const QModelIndex& index, const QPoint& at);
  void copyStyle();
  void pasteStyle();
  std::vector<Element*> inspected() const;

  Operator& hands_;
  Attachment watching_;
  InspectorModel model_;
  QLabel* title_;
  PropertyTable* table_;
  QToolButton* copy_;
  QToolButton* paste_;
  QTimer refreshing_;
  CopiedLook copied_;  ///< to be given on
};

}  // namespace veneerer
