#include "ui/chooserwindow.h"

#include <QHBoxLayout>

#include "ui/layouts.h"

namespace veneerer {

ChooserWindow::ChooserWindow(const Ui& ui) {
  Form3& form = ui.hands.state().form3;
  setWindowTitle(QStringLiteral("Choose a Skin"));
  resize(420, 460);
  auto* column = new QVBoxLayout(this);
  RowListView* skins = makeList(ui, *form.List1);
  skins->setAccessibleName(QStringLiteral("Skins"));
  column->addWidget(makeLabel(QStringLiteral("Skins:"), skins));
  column->addWidget(skins, 3);
  RowListView* folders = makeList(ui, *form.Dir1);
  folders->setTextElideMode(Qt::ElideMiddle);
  folders->setAccessibleName(QStringLiteral("Folders"));
  column->addWidget(makeLabel(QStringLiteral("Folders:"), folders));
  column->addWidget(folders, 1);
  auto* row = new QHBoxLayout;
  QLineEdit* name = makeField(ui, *form.Text1);
  row->addWidget(makeLabel(QStringLiteral("Name:"), name));
  row->addWidget(name, 1);
  row->addWidget(makeCommand(ui, *form.Command1));
  column->addLayout(row);
  assignMnemonics(*this);
}

}  // namespace veneerer
