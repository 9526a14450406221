#include "ui/toolswindow.h"

#include <QHBoxLayout>

#include "canvas/description.h"
#include "canvas/sections.h"
#include "tools/service.h"
#include "ui/fieldnote.h"
#include "ui/layouts.h"
#include "ui/rescaleoutlook.h"
#include "ui/swatch.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

// Shorter than any style waits before it shows a tip, longer than the pause between two keys; milliseconds.
constexpr int kRest = 250;

// A field for a number of twips, pixels or points asks for no more room than that.
QLineEdit* makeNumberField(const Ui& ui, TextBox& element) {
  QLineEdit* field = makeField(ui, element);
  field->setMinimumWidth(field->fontMetrics().horizontalAdvance(QStringLiteral("0000.00")));
  field->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  return field;
}

// Two number fields with their labels in one row of four columns.
void addPair(QGridLayout* grid, int row, const Ui& ui, const char* first, TextBox& firstBox,
             const char* second, TextBox& secondBox) {
  int column = 0;
  for (const auto& [label, box] : {std::pair(first, &firstBox), std::pair(second, &secondBox)}) {
    QLineEdit* field = makeNumberField(ui, *box);
    addField(grid, row, column, QString::fromLatin1(label), field);
    column += 2;
  }
}

// Command buttons that share a row evenly.
void addCommands(QGridLayout* grid, int row, const Ui& ui, const QList<CommandButton*>& commands) {
  auto* line = new QHBoxLayout;
  for (CommandButton* command : commands) line->addWidget(makeCommand(ui, *command));
  grid->addLayout(line, row, 0, 1, -1);
}

QLayout* screenLayout(const Ui& ui, Form6& form) {
  auto* row = new QHBoxLayout;
  TextCombo* screens = makeCombo(ui, *form.Combo6);
  screens->setMaxVisibleItems(32);
  row->addWidget(makeLabel(QStringLiteral("Edit Section:"), screens));
  row->addWidget(screens, 1);
  return row;
}

QLayout* captionLayout(const Ui& ui, Form6& form) {
  auto* row = new QHBoxLayout;
  QLineEdit* caption = makeField(ui, *form.Text1);
  caption->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  new FieldNote(*caption);
  row->addWidget(makeLabel(QStringLiteral("Button Caption:"), caption));
  row->addWidget(caption, 1);
  return row;
}

QGroupBox* elementFrame(const Ui& ui, Form6& form) {
  auto* grid = compact(new QGridLayout);
  grid->addLayout(captionLayout(ui, form), 0, 0, 1, -1);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  addPair(grid, 1, ui, "Height:", form.Text3[0], "Width:", form.Text3[1]);
  addCommands(grid, 2, ui, {&*form.Command5});
  addPair(grid, 3, ui, "Top:", form.Text9[0], "Left:", form.Text9[1]);
  addCommands(grid, 4, ui, {&*form.Command12});
  addPair(grid, 5, ui, "X Shift:", form.Text5[0], "Y Shift:", form.Text5[1]);
  addPair(grid, 6, ui, "X Space:", form.Text6[0], "Y Space:", form.Text6[1]);
  addPair(grid, 7, ui, "X Grid:", form.Text10[0], "Y Grid:", form.Text10[1]);
  for (int axis = 0; axis < 2; ++axis)
    addCommands(grid, 8 + axis, ui, {&form.Command6[axis], &form.Command9[axis], &form.Command8[axis]});
  addCommands(grid, 10, ui, {&*form.Command13});
  return makeFrame(UiTexts::tr("Place and Size"), grid, QStringLiteral("Place and Size"));
}

QGroupBox* buttonFrame(const Ui& ui, Form6& form) {
  auto* grid = compact(new QGridLayout);
  addField(grid, 0, 0, QStringLiteral("Shape:"), makeCombo(ui, *form.Combo1));
  addField(grid, 1, 0, QStringLiteral("Style:"), makeCombo(ui, *form.Combo2));
  addCommands(grid, 2, ui, {&*form.Command3});
  addCommands(grid, 3, ui, {&*form.Command7});
  grid->setColumnStretch(1, 1);
  return makeFrame(UiTexts::tr("Button Style"), grid, QStringLiteral("Button Style"));
}

QGroupBox* samplesFrame(const Ui& ui, Form6& form) {
  auto* row = compact(new QHBoxLayout);
  for (Element* sample : form.lvButtons_H5.members()) row->addWidget(new Sample(ui, *sample));
  row->addStretch();
  return makeFrame(QStringLiteral("All Other Buttons Properties"), row);
}

QGroupBox* rescaleFrame(const Ui& ui, Form6& form) {
  auto* grid = compact(new QGridLayout);
  addPair(grid, 0, ui, "Width:", *form.Text7, "Height:", *form.Text8);
  grid->addWidget(makeCheck(ui, *form.Check2), 1, 0, 1, -1);
  grid->addWidget(new RescaleOutlook(ui), 2, 0, 1, -1);
  return makeFrame(QStringLiteral("Re-Scale Skin"), grid);
}

QLayout* colourInHandLayout(const Ui& ui, Form6& form) {
  auto* grid = new QGridLayout;
  grid->setSpacing(4);
  auto* swatch = new Swatch(ui, *form.Picture2);
  grid->addWidget(makeLabel(QStringLiteral("Selected Colour:"), swatch), 0, 0, 1, 2);
  grid->addWidget(swatch, 1, 0);
  grid->addWidget(makeColourArrow(*swatch), 1, 1);
  QLineEdit* text = makeField(ui, *form.Text2);
  text->setAccessibleName(UiTexts::tr("Colour"));
  text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  grid->addWidget(text, 2, 0, 1, 2);
  return grid;
}

QLayout* highlightLayout(const Ui& ui, Form6& form) {
  auto* row = new QHBoxLayout;
  auto* swatch = new Swatch(ui, *form.Picture1);
  row->addWidget(makeLabel(QStringLiteral("Key Highlight Colour:"), swatch));
  row->addWidget(swatch, 1);
  row->addWidget(makeColourArrow(*swatch));
  return row;
}

QGroupBox* colourFrame(const Ui& ui, Form6& form) {
  auto* grid = compact(new QGridLayout);
  for (int i = 0; i < 3; ++i) grid->addWidget(makeOption(ui, form.Option1[i]), i, 0);
  grid->addLayout(colourInHandLayout(ui, form), 0, 1, 3, 1, Qt::AlignVCenter);
  addField(grid, 3, 0, QStringLiteral("Gradient Style:"), makeCombo(ui, *form.Combo4));
  grid->addLayout(highlightLayout(ui, form), 4, 0, 1, 2);
  addCommands(grid, 5, ui, {&form.Command2[0], &form.Command2[1]});
  grid->setColumnStretch(1, 1);
  return makeFrame(QStringLiteral("Colour Settings"), grid);
}

QGroupBox* fontFrame(const Ui& ui, Form6& form) {
  auto* grid = compact(new QGridLayout);
  RowListView* fonts = makeList(ui, *form.List1);
  fonts->setArrowsChoose(true);
  fonts->setAccessibleName(QStringLiteral("Fonts"));
  grid->addWidget(fonts, 0, 0, 1, 3);
  grid->setRowStretch(0, 1);
  addField(grid, 1, 0, QStringLiteral("Font Size:"), makeNumberField(ui, *form.Text4));
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

ToolsWindow::ToolsWindow(const Ui& ui) : hands_(ui.hands) {
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
  auto* columns = new QHBoxLayout;
  columns->addLayout(left, 1);
  columns->addLayout(right, 1);
  setContent(*this, columns);
  assignMnemonics(*this);
  findControls();
  telling_.setSingleShot(true);
  telling_.setInterval(kRest);
  telling_.callOnTimeout(this, &ToolsWindow::showTips);
  connect(&hands_, &Operator::acted, this, &ToolsWindow::followHand);
  followHand();
}

void ToolsWindow::findControls() {
  const QList<QLabel*> labels = findChildren<QLabel*>();
  for (const Family* family : hands_.state().form6.families())
    for (const Element* element : family->members())
      if (auto* widget = findChild<QWidget*>(element->key())) {
        const auto label = std::ranges::find(labels, widget, &QLabel::buddy);
        controls_.append({element, widget, label == labels.end() ? nullptr : *label});
      }
}

void ToolsWindow::followHand() {
  greyOut();
  telling_.start();
}

// Each key in a field comes by here: nothing is set that stands already.
void ToolsWindow::greyOut() {
  QPalette grey = palette();
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    grey.setColor(role, grey.color(QPalette::Disabled, role));
  for (const Control& control : controls_) {
    const bool serves = servesWhatIsInHand(hands_.state(), *control.element);
    if (control.widget->testAttribute(Qt::WA_SetPalette) != serves) continue;
    control.widget->setPalette(serves ? QPalette() : grey);
    if (control.label) control.label->setPalette(control.widget->palette());
  }
}

void ToolsWindow::showTips() {
  State& state = hands_.state();
  const Element* inHand = currentElement(state);
  const QString now = inHand ? inHand->key() + elementTitle(state, *inHand) : QString();
  if (std::exchange(told_, now) == now) return;
  for (const Control& control : controls_) showTip(state, *control.element, *control.widget);
}

// The list takes long to get, so the first paint doesn't wait for it.
void ToolsWindow::paintEvent(QPaintEvent*) {
  if (!std::exchange(fontsAsked_, true)) QTimer::singleShot(0, &hands_, &Operator::fillFonts);
}

}  // namespace veneerer
