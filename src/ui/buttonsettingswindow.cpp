#include "ui/buttonsettingswindow.h"

#include "ui/layouts.h"

namespace veneerer {

namespace {

// A frame of check boxes, the members first to last of one family, read down its columns.
QGroupBox* boxesFrame(const Ui& ui, const QString& title, Array<CheckBox>& boxes, int first, int last,
                      int columns = 1) {
  auto* grid = compact(new QGridLayout);
  const int rows = (last - first + columns) / columns;
  for (int i = first; i <= last; ++i)
    grid->addWidget(makeCheck(ui, boxes[i]), (i - first) % rows, (i - first) / rows);
  grid->setRowStretch(rows, 1);
  return makeFrame(title, grid);
}

}  // namespace

ButtonSettingsWindow::ButtonSettingsWindow(const Ui& ui) {
  Form2& form = ui.hands.state().form2;
  setWindowTitle(QStringLiteral("Button Settings"));
  auto* grid = new QGridLayout;
  grid->addWidget(boxesFrame(ui, QStringLiteral("Misc Buttons"), form.Check1, 0, 4), 0, 0);
  grid->addWidget(boxesFrame(ui, QStringLiteral("Tabs"), form.Check3, 0, 5), 0, 1);
  grid->addWidget(boxesFrame(ui, QStringLiteral("Play Button Options"), form.Check1, 5, 13), 1, 0);
  grid->addWidget(boxesFrame(ui, QStringLiteral("Menu Bar Items"), form.Check2, 0, 15, 2), 1, 1);
  grid->addWidget(makeCommand(ui, *form.Command1), 2, 0, 1, 2, Qt::AlignRight);
  grid->setRowStretch(1, 1);
  setContent(*this, grid);
  assignMnemonics(*this);
}

}  // namespace veneerer
