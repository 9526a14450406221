#include "ui/settingswindow.h"

#include <QHBoxLayout>

#include "forms/fieldlabels.h"
#include "ui/layouts.h"

namespace veneerer {

namespace {

// "N.o Covers" alone stands without a colon.
QLabel* makeFieldLabel(const Element& element, QWidget* control) {
  const QString text = fieldLabel(*element.family());
  return makeLabel(text.contains(u'.') ? text : text + u':', control);
}

QGroupBox* fileFrame(const Ui& ui, Form4& form) {
  auto* row = compact(new QHBoxLayout);
  TextCombo* skin = makeCombo(ui, *form.Combo3);
  row->addWidget(makeFieldLabel(*form.Combo3, skin));
  row->addWidget(skin, 1);
  row->addWidget(makeCommand(ui, *form.Command4));
  return makeFrame(QStringLiteral("File Options"), row);
}

void addList(QGridLayout* grid, int row, int column, int columns, const Ui& ui, ComboBox& box) {
  TextCombo* list = makeCombo(ui, box);
  grid->addWidget(makeFieldLabel(box, list), row, column);
  grid->addWidget(list, row, column + 1, 1, columns);
}

// The texts of the rows are long, so each list has the whole width; the numbers share one.
QLayout* listsLayout(const Ui& ui, Form4& form) {
  auto* grid = new QGridLayout;
  grid->setSpacing(4);
  int row = 0;
  for (ComboBox* list : {&*form.Combo8, &*form.Combo9, &*form.Combo10, &*form.Combo6, &*form.Combo2,
                         &*form.Combo5, &*form.Combo11, &*form.Combo12})
    addList(grid, row++, 0, 3, ui, *list);
  addList(grid, row, 0, 1, ui, *form.Combo7);
  addList(grid, row, 2, 1, ui, *form.Combo1);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  return grid;
}

QLayout* boxesLayout(const Ui& ui, Form4& form) {
  CheckBox* const boxes[] = {&*form.Check2,  &*form.Check8,  &*form.Check9,
                             &*form.Check12, &*form.Check10, &*form.Check11};
  auto* grid = new QGridLayout;
  grid->setSpacing(4);
  int place = 0;
  for (CheckBox* box : boxes) {
    grid->addWidget(makeCheck(ui, *box), place / 2, place % 2);
    ++place;
  }
  return grid;
}

QGroupBox* skinFrame(const Ui& ui, Form4& form) {
  auto* column = compact(new QVBoxLayout);
  column->addLayout(listsLayout(ui, form));
  column->addLayout(boxesLayout(ui, form));
  return makeFrame(QStringLiteral("Main Skin Properties"), column);
}

QGroupBox* resolutionFrame(const Ui& ui, Form4& form) {
  auto* grid = compact(new QGridLayout);
  for (int i = 0; i < 2; ++i) {
    QLineEdit* field = makeField(ui, form.Text1[i]);
    addField(grid, 0, 2 * i, i == 0 ? QStringLiteral("X:") : QStringLiteral("Y:"), field);
  }
  return makeFrame(fieldLabel(form.Text1), grid);
}

QLayout* coverFileLayout(const Ui& ui, Form4& form) {
  auto* column = new QVBoxLayout;
  RowListView* files = makeFileList(ui, *form.File1);
  files->setAccessibleName(fieldLabel(form.File1));
  column->addWidget(makeFieldLabel(*form.File1, files));
  column->addWidget(files, 1);
  auto* name = new QHBoxLayout;
  QLineEdit* field = makeField(ui, *form.Text2);
  name->addWidget(makeFieldLabel(*form.Text2, field));
  name->addWidget(field, 1);
  column->addLayout(name);
  column->addWidget(makeCommand(ui, *form.Command1));
  return column;
}

QLayout* coverOptionsLayout(const Ui& ui, Form4& form) {
  auto* column = new QVBoxLayout;
  auto* count = new QHBoxLayout;
  TextCombo* covers = makeEditableCombo(ui, *form.Combo4);
  count->addWidget(makeFieldLabel(*form.Combo4, covers));
  count->addWidget(covers, 1);
  column->addLayout(count);
  CheckBox* const boxes[] = {&*form.Check1, &*form.Check3, &*form.Check4,
                             &*form.Check5, &*form.Check6, &*form.Check7};
  for (CheckBox* box : boxes) column->addWidget(makeCheck(ui, *box));
  column->addStretch();
  return column;
}

QGroupBox* coversFrame(const Ui& ui, Form4& form) {
  auto* row = compact(new QHBoxLayout);
  row->addLayout(coverFileLayout(ui, form), 1);
  row->addSpacing(8);
  row->addLayout(coverOptionsLayout(ui, form), 1);
  return makeFrame(QStringLiteral("Covers File"), row);
}

}  // namespace

SettingsWindow::SettingsWindow(const Ui& ui) {
  Form4& form = ui.hands.state().form4;
  setWindowTitle(QStringLiteral("File Controls/Settings"));
  auto* column = new QVBoxLayout;
  column->addWidget(fileFrame(ui, form));
  column->addWidget(skinFrame(ui, form));
  column->addWidget(resolutionFrame(ui, form));
  column->addWidget(coversFrame(ui, form), 1);
  setContent(*this, column);
  assignMnemonics(*this);
}

}  // namespace veneerer
