#include "ui/chooserwindow.h"

#include <QHBoxLayout>

#include "ui/layouts.h"
#include "ui/texts.h"

namespace veneerer {

ChooserWindow::ChooserWindow(const Ui& ui) {
  Form3& form = ui.hands.state().form3;
  setWindowTitle(UiTexts::tr("Choose a Skin"));
  resize(420, 460);
  auto* column = new QVBoxLayout(this);
  RowListView* skins = makeList(ui, *form.List1);
  skins->setAccessibleName(UiTexts::tr("Skins"));
  column->addWidget(makeLabel(UiTexts::tr("Skins:"), skins));
  column->addWidget(skins, 3);
  RowListView* folders = makeList(ui, *form.Dir1);
  folders->setTextElideMode(Qt::ElideMiddle);
  folders->setAccessibleName(UiTexts::tr("Folders"));
  column->addWidget(makeLabel(UiTexts::tr("Folders:"), folders));
  column->addWidget(folders, 1);
  auto* row = new QHBoxLayout;
  QLineEdit* name = makeField(ui, *form.Text1);
  row->addWidget(makeLabel(UiTexts::tr("Name:"), name));
  row->addWidget(name, 1);
  row->addWidget(makeCommand(ui, *form.Command1));
  column->addLayout(row);
  assignMnemonics(*this);
}

}  // namespace veneerer
