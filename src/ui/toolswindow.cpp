#include "ui/toolswindow.h"

#include <QFontDatabase>
#include <QHBoxLayout>

#include "ui/layouts.h"
#include "ui/swatch.h"

namespace veneerer {

namespace {

// Two text boxes with their labels in one row, and what acts on them behind.
struct PairRow {
  const char* first;
  const char* second;
  const Array<TextBox>* fields;
  QList<CommandButton*> commands;
};

void addPair(QGridLayout* grid, int row, const Ui& ui, const PairRow& pair) {
  addField(grid, row, 0, QString::fromLatin1(pair.first), makeField(ui, (*pair.fields)[0]));
  addField(grid, row, 2, QString::fromLatin1(pair.second), makeField(ui, (*pair.fields)[1]));
  auto* commands = new QHBoxLayout;
  for (CommandButton* command : pair.commands) commands->addWidget(makeCommand(ui, *command));
  grid->addLayout(commands, row, 4);
}

QLayout* screenLayout(const Ui& ui, Form6& form) {
  auto* row = new QHBoxLayout;
  TextCombo* screens = makeCombo(ui, *form.Combo6);
  screens->setMaxVisibleItems(32);
  screens->setToolTip(QStringLiteral("The screen that the canvas shows"));
  row->addWidget(makeLabel(QStringLiteral("Edit Section:"), screens));
  row->addWidget(screens, 1);
  return row;
}

QGroupBox* elementFrame(const Ui& ui, Form6& form) {
  auto* grid = compact(new QGridLayout);
  QLineEdit* caption = makeField(ui, *form.Text1);
  grid->addWidget(makeLabel(QStringLiteral("Button Caption:"), caption), 0, 0, 1, 2);
  grid->addWidget(caption, 0, 2, 1, 3);
  const PairRow pairs[] = {
      {"Height:", "Width:", &form.Text3, {&*form.Command5}},
      {"Top:", "Left:", &form.Text9, {&*form.Command12}},
      {"X Shift:", "Y Shift:", &form.Text5, {&form.Command6[0], &form.Command6[1]}},
      {"X Space:", "Y Space:", &form.Text6, {&form.Command9[0], &form.Command9[1]}},
      {"X Grid:", "Y Grid:", &form.Text10, {&*form.Command13}},
  };
  int row = 1;
  for (const PairRow& pair : pairs) addPair(grid, row++, ui, pair);
  auto* align = new QHBoxLayout;
  align->addWidget(makeCommand(ui, form.Command8[0]));
  align->addWidget(makeCommand(ui, form.Command8[1]));
  grid->addWidget(new QLabel(QStringLiteral("To the element clicked last:")), row, 0, 1, 4);
  grid->addLayout(align, row, 4);
  return makeFrame(QStringLiteral("Place and Size"), grid);
}

QGroupBox* buttonFrame(const Ui& ui, Form6& form) {
  auto* grid = compact(new QGridLayout);
  addField(grid, 0, 0, QStringLiteral("Shape:"), makeCombo(ui, *form.Combo1));
  addField(grid, 0, 2, QStringLiteral("Style:"), makeCombo(ui, *form.Combo2));
  grid->addWidget(makeCommand(ui, *form.Command3), 1, 0, 1, 2);
  grid->addWidget(makeCommand(ui, *form.Command7), 1, 2, 1, 2);
  return makeFrame(QStringLiteral("Button Style"), grid);
}

QGroupBox* samplesFrame(const Ui& ui, Form6& form) {
  auto* row = compact(new QHBoxLayout);
  for (Element* sample : form.lvButtons_H5.members()) row->addWidget(new Sample(ui, *sample));
  row->addStretch();
  return makeFrame(QStringLiteral("All Other Buttons Properties"), row);
}

QGroupBox* rescaleFrame(const Ui& ui, Form6& form) {
  auto* grid = compact(new QGridLayout);
  addField(grid, 0, 0, QStringLiteral("New width:"), makeField(ui, *form.Text7));
  addField(grid, 0, 2, QStringLiteral("New height:"), makeField(ui, *form.Text8));
  grid->addWidget(makeCheck(ui, *form.Check2), 1, 0, 1, 2);
  grid->addWidget(makeCommand(ui, *form.Command10), 1, 2, 1, 2);
  return makeFrame(QStringLiteral("Re-Scale Skin"), grid);
}

QLayout* swatchLayout(const Ui& ui, const char* label, PictureBox& box, QWidget* beside) {
  auto* row = new QHBoxLayout;
  auto* swatch = new Swatch(ui, box);
  swatch->setToolTip(QStringLiteral("Click to choose a colour"));
  row->addWidget(makeLabel(QString::fromLatin1(label), swatch), 1);
  row->addWidget(swatch);
  if (beside) row->addWidget(beside, 1);
  return row;
}

QGroupBox* colourFrame(const Ui& ui, Form6& form) {
  auto* grid = compact(new QGridLayout);
  for (int i = 0; i < 3; ++i) grid->addWidget(makeOption(ui, form.Option1[i]), i, 0);
  QLineEdit* text = makeField(ui, *form.Text2);
  text->setToolTip(QStringLiteral("A number, &H and hexadecimal digits, or # and six of them"));
  grid->addLayout(swatchLayout(ui, "Selected Colour:", *form.Picture2, nullptr), 0, 1);
  grid->addWidget(text, 1, 1);
  auto* gradient = new QHBoxLayout;
  TextCombo* styles = makeCombo(ui, *form.Combo4);
  gradient->addWidget(makeLabel(QStringLiteral("Gradient Style:"), styles));
  gradient->addWidget(styles, 1);
  grid->addLayout(gradient, 2, 1);
  grid->addLayout(swatchLayout(ui, "Key Highlight Colour:", *form.Picture1, nullptr), 3, 0, 1, 2);
  grid->addWidget(makeCommand(ui, form.Command2[0]), 4, 0);
  grid->addWidget(makeCommand(ui, form.Command2[1]), 4, 1);
  grid->setColumnStretch(1, 1);
  return makeFrame(QStringLiteral("Colour Settings"), grid);
}

QGroupBox* fontFrame(const Ui& ui, Form6& form) {
  auto* grid = compact(new QGridLayout);
  RowListView* fonts = makeList(ui, *form.List1);
  fonts->setArrowsChoose(true);
  fonts->setAccessibleName(QStringLiteral("Fonts"));
  fonts->setMinimumHeight(70);
  grid->addWidget(fonts, 0, 0, 1, 3);
  grid->setRowStretch(0, 1);
  addField(grid, 1, 0, QStringLiteral("Font Size:"), makeField(ui, *form.Text4));
  grid->addWidget(makeCommand(ui, *form.Command14), 1, 2);
  CommandButton* const commands[] = {&form.Command1[0], &form.Command1[1], &form.Command4[0],
                                     &form.Command4[1]};
  int row = 2;
  for (CommandButton* command : commands) grid->addWidget(makeCommand(ui, *command), row++, 0, 1, 3);
  return makeFrame(QStringLiteral("Fonts"), grid);
}

QGroupBox* labelFrame(const Ui& ui, Form6& form) {
  auto* grid = compact(new QGridLayout);
  addField(grid, 0, 0, QStringLiteral("Alignment:"), makeCombo(ui, *form.Combo5));
  grid->addWidget(makeCommand(ui, *form.Command11), 1, 0, 1, 2);
  grid->addWidget(makeCheck(ui, *form.Check1), 2, 0, 1, 2);
  auto* samples = new QHBoxLayout;
  for (Element* sample : form.Label6.members()) samples->addWidget(new Sample(ui, *sample));
  samples->addStretch();
  grid->addLayout(samples, 3, 0, 1, 2);
  return makeFrame(QStringLiteral("Label Settings"), grid);
}

QGroupBox* previewFrame(const Ui& ui, Form6& form) {
  auto* row = compact(new QHBoxLayout);
  row->addWidget(new Sample(ui, *form.Label5));
  row->addWidget(new Sample(ui, *form.Label7));
  row->addStretch();
  return makeFrame(QStringLiteral("General Font Preview"), row);
}

}  // namespace

ToolsWindow::ToolsWindow(const Ui& ui) : fonts_(*ui.hands.state().form6.List1) {
  Form6& form = ui.hands.state().form6;
  setWindowTitle(QStringLiteral("Tools"));
  auto* left = new QVBoxLayout;
  left->addLayout(screenLayout(ui, form));
  left->addWidget(elementFrame(ui, form));
  left->addWidget(buttonFrame(ui, form));
  left->addWidget(samplesFrame(ui, form));
  left->addWidget(rescaleFrame(ui, form));
  left->addStretch();
  auto* right = new QVBoxLayout;
  right->addWidget(colourFrame(ui, form));
  right->addWidget(fontFrame(ui, form), 1);
  right->addWidget(labelFrame(ui, form));
  right->addWidget(previewFrame(ui, form));
  auto* columns = new QHBoxLayout(this);
  columns->setContentsMargins(8, 8, 8, 8);
  columns->addLayout(left, 1);
  columns->addLayout(right, 1);
  assignMnemonics(*this);
}

// The list takes long to get, so the first paint doesn't wait for it.
void ToolsWindow::paintEvent(QPaintEvent*) {
  if (!std::exchange(fontsAsked_, true)) QTimer::singleShot(0, this, &ToolsWindow::fillFonts);
}

void ToolsWindow::fillFonts() {
  if (fonts_.list().isEmpty()) fonts_.setRows(QFontDatabase::families());
}

}  // namespace veneerer
