// The outline: all elements of the canvas, with a search.
#pragma once

#include <QLineEdit>
#include <QTreeView>

#include "ui/bindings.h"
#include "ui/outlinemodel.h"

namespace veneerer {

/// A click on a row goes to its element and selects it on the overlay, Enter and a double click are the
/// element's click. The focus goes to the search.
class OutlinePanel : public QWidget {
public:
  explicit OutlinePanel(const Ui& ui);

protected:
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* tree, QEvent* event) override;

private:
  void search(const QString& query);
  void select();
  void click(const QModelIndex& index);
  void showInHand();
  void makeHintReadable();

  Operator& hands_;
  OutlineModel model_;
  QLineEdit* query_;
  QTreeView* tree_;
  QTimer rereading_;
  Attachment watching_;
};

}  // namespace veneerer
