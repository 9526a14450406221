#include "ui/canvaswindow.h"

#include <QActionGroup>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QShowEvent>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

#include "canvas/description.h"
#include "canvas/screens.h"
#include "ui/arrangement.h"
#include "ui/editcommands.h"
#include "ui/exchangecommands.h"
#include "ui/helpcommands.h"
#include "ui/inhandline.h"
#include "ui/keys.h"
#include "ui/keysheet.h"
#include "ui/language.h"
#include "ui/mockupcommands.h"
#include "ui/opencommand.h"
#include "ui/plaintext.h"
#include "ui/previewcommands.h"
#include "ui/recolourdialog.h"
#include "ui/savednote.h"
#include "ui/skindrop.h"
#include "ui/takedialog.h"
#include "ui/texts.h"
#include "ui/tryit.h"
#include "ui/viewcommands.h"

namespace veneerer {

namespace {

// Ticks the entry of the Edit Section list that is chosen.
class ScreenMenuBinding : public Binding {
public:
  ScreenMenuBinding(ComboBox& list, QMenu& menu) : Binding(list, menu), list_(list), menu_(menu) {
    show(Property::ListIndex);
  }
  void show(Property) override {
    const QList<QAction*> entries = menu_.actions();
    for (int i = 0; i < entries.size(); ++i) entries[i]->setChecked(i == list_.listIndex());
  }

private:
  ComboBox& list_;
  QMenu& menu_;
};

void makeCommand(QAction& action, const QList<QKeySequence>& keys, const QString& tip) {
  action.setShortcuts(keys);
  // The keys work in every window of the program.
  action.setShortcutContext(Qt::ApplicationShortcut);
  action.setStatusTip(tip);
}

QString withStep(const QString& command, const QString& step) {
  //: "Undo Move": a command and the name of the step that it is about
  return step.isEmpty() ? command : UiTexts::tr("%1 %2").arg(command, plainMenuText(step));
}

}  // namespace

CanvasWindow::CanvasWindow(const Ui& ui)
    : ui_(ui), state_(ui.hands.state()), view_(new CanvasView(ui)), status_(new StatusLine) {
  setCentralWidget(view_);
  statusBar()->addWidget(status_, 1);
  statusBar()->addPermanentWidget(makeZoomButton(*view_));
  state_.notes.setListener([this](const QString& note, NoteKind kind) {
    status_->tell(shownNote(note, kind, ui_.hands.skinFolder().path(), QTime::currentTime()));
  });
  connect(&view_->canvas(), &CanvasWidget::pointed, this, &CanvasWindow::pointed);
  addInHandLine();
  new SkinDrop(ui_.hands, *this);
  setDockNestingEnabled(true);
  setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
  addFileMenu();
  addEditMenu();
  addViewMenu();
  addWindowMenu();
  addHelpMenu();
}

CanvasWindow::~CanvasWindow() {
  state_.notes.setListener({});
}

QAction* CanvasWindow::addCommand(QMenu* menu, const QString& text, const QList<QKeySequence>& keys,
                                  const QString& tip) {
  QAction* action = menu->addAction(text);
  makeCommand(*action, keys, tip);
  return action;
}

void CanvasWindow::addInHandLine() {
  auto* bar = new QToolBar(tr("In hand"));
  bar->setMovable(false);
  bar->toggleViewAction()->setVisible(false);
  bar->addWidget(new InHandLine(ui_));
  addToolBar(Qt::TopToolBarArea, bar);
}

void CanvasWindow::addFileMenu() {
  QMenu* menu = menuBar()->addMenu(UiTexts::tr(kMenus[0]));
  QAction* open =
      addCommand(menu, tr("&Open Skin..."), {QKeySequence::Open}, tr("Choose another Skin; Undo leads back"));
  makeOpenCommand(*open, ui_);
  QAction* save =
      addCommand(menu, tr("&Save Skin"), {QKeySequence::Save}, tr("Write the record files of the Skin"));
  connect(save, &QAction::triggered, this, [this] { ui_.hands.click(*state_.form4.Command4); });
  addExchangeCommands(*menu, ui_.hands, *this);
  menu->addSeparator();
  addPreviewCommands(*menu, ui_);
  menu->addSeparator();
  QAction* quit =
      addCommand(menu, tr("&Quit"), {QKeySequence::Quit}, tr("End the program; nothing is saved"));
  connect(quit, &QAction::triggered, this, &QWidget::close);
}

void CanvasWindow::addEditMenu() {
  QMenu* menu = menuBar()->addMenu(UiTexts::tr(kMenus[1]));
  History& history = ui_.hands.history();
  QUndoStack& steps = history.stack();
  const auto add = [&](const QString& text, const QList<QKeySequence>& keys, const QString& tip, bool can,
                       auto textChanged, auto canChanged) {
    QAction* action = addCommand(menu, text, keys, tip);
    action->setEnabled(can);
    connect(&steps, textChanged, action,
            [action, text](const QString& step) { action->setText(withStep(text, step)); });
    connect(&steps, canChanged, action, &QAction::setEnabled);
    return action;
  };
  QAction* undo = add(tr("&Undo"), kUndoKeys, tr("Take the last step back"), steps.canUndo(),
                      &QUndoStack::undoTextChanged, &QUndoStack::canUndoChanged);
  connect(undo, &QAction::triggered, this, [&history] { history.undo(); });
  QAction* redo = add(tr("&Redo"), kRedoKeys, tr("Do that step again"), steps.canRedo(),
                      &QUndoStack::redoTextChanged, &QUndoStack::canRedoChanged);
  connect(redo, &QAction::triggered, this, [&history] { history.redo(); });
  addEditCommands(*menu, ui_.hands);
  menu->addSeparator();
  addCopyScreen(*menu, ui_);
  addTakeCommand(*menu, ui_.hands, *this);
  addRecolourCommand(*menu, ui_, view_->canvas(), *this);
  connect(&steps, &QUndoStack::cleanChanged, this, [this](bool isClean) { setWindowModified(!isClean); });
}

void CanvasWindow::addViewMenu() {
  QMenu* menu = menuBar()->addMenu(UiTexts::tr(kMenus[2]));
  addScreenMenu(menu->addMenu(tr("&Screen")));
  menu->addSeparator();
  QAction* next = addCommand(menu, tr("&Next Screen"), {QKeySequence(u"Ctrl+PgDown"_qs)},
                             tr("Show the screen behind this one in the list"));
  connect(next, &QAction::triggered, this, [this] { showScreen(1); });
  QAction* previous = addCommand(menu, tr("&Previous Screen"), {QKeySequence(u"Ctrl+PgUp"_qs)},
                                 tr("Show the screen ahead of this one in the list"));
  connect(previous, &QAction::triggered, this, [this] { showScreen(-1); });
  menu->addSeparator();
  QAction* tryIt = addCommand(menu, tr("Tr&y It"), {QKeySequence(kTryItKey)},
                              tr("See the Skin in full screen and press its menus' buttons"));
  connect(tryIt, &QAction::triggered, this, [this] { tryOut(ui_, this); });
  menu->addSeparator();
  addViewCommands(*menu, *view_);
  addMockUpCommands(*menu->addMenu(tr("&Mock-up")), view_->canvas(), ui_.hands);
}

void CanvasWindow::addScreenMenu(QMenu* menu) {
  auto* oneOfThem = new QActionGroup(menu);
  for (int i = 0; i < static_cast<int>(kScreenEntries.size()); ++i) {
    const QStringView text = kScreenEntries[static_cast<std::size_t>(i)];
    QAction* entry = menu->addAction(plainMenuText(text.toString()));
    entry->setStatusTip(tr("Show this screen"));
    entry->setCheckable(true);
    oneOfThem->addAction(entry);
    connect(entry, &QAction::triggered, this, [this, i] { ui_.hands.choose(*state_.form6.Combo6, i); });
  }
  new ScreenMenuBinding(*state_.form6.Combo6, *menu);
}

void CanvasWindow::showScreen(int step) {
  ComboBox& screens = *state_.form6.Combo6;
  const int row = screens.listIndex() + step;
  if (row >= 0) ui_.hands.choose(screens, row);
}

void CanvasWindow::addWindowMenu() {
  panelMenu_ = menuBar()->addMenu(UiTexts::tr(kMenus[3]));
  panelMenu_->addSeparator();
  QAction* canvas = addCommand(panelMenu_, tr("&Canvas"), {QKeySequence(Qt::CTRL | Qt::Key_E)},
                               tr("Give the keys to the canvas"));
  connect(canvas, &QAction::triggered, this, [this] {
    activateWindow();
    view_->canvas().setFocus(Qt::ShortcutFocusReason);
  });
  QAction* first = addCommand(panelMenu_, tr("&Arrange"), {}, tr("Put all panels back beside the canvas"));
  connect(first, &QAction::triggered, this, &CanvasWindow::arrange);
}

void CanvasWindow::add(const Panel& panel) {
  panels_.append(panel);
  auto* action = new QAction(panel.menuText, panelMenu_);
  panelMenu_->insertAction(panelMenu_->actions().at(panels_.size() - 1), action);
  makeCommand(*action, {panel.keys}, tr("Bring this panel to the front"));
  connect(action, &QAction::triggered, this, [this, panel] { bringUp(panel); });
  addDockWidget(Qt::RightDockWidgetArea, panel.dock);
}

void CanvasWindow::bringUp(const Panel& panel) {
  if (panel.element)
    panel.element->setVisible(true);
  else
    panel.dock->show();
  panel.dock->raise();
  panel.dock->activateWindow();
  if (QWidget* content = panel.dock->widget(); content->focusProxy())
    content->setFocus(Qt::ShortcutFocusReason);
}

void CanvasWindow::arrange() {
  QList<QDockWidget*> docks;
  for (const Panel& panel : panels_) docks.append(panel.dock);
  arrangePanels(*this, docks, view_->wholeSize());
}

void CanvasWindow::addHelpMenu() {
  QMenu* menu = menuBar()->addMenu(UiTexts::tr(kMenus[4]));
  addHelpCommands(*menu, *this);
  menu->addSeparator();
  QAction* keys = addCommand(menu, tr("&Keyboard and Mouse"), {QKeySequence(Qt::SHIFT | Qt::Key_F1)},
                             tr("List all keys and gestures"));
  connect(keys, &QAction::triggered, this, [this] { showKeySheet(*this); });
  addLanguageMenu(*menu->addMenu(tr("&Language")), state_.notes);
  connect(menu->addAction(tr("&About")), &QAction::triggered, this, &CanvasWindow::about);
}

void CanvasWindow::about() {
  const Splash& splash = state_.frmSplash;
  QMessageBox box(this);
  box.setWindowTitle(tr("About"));
  box.setTextFormat(Qt::PlainText);
  box.setText(splash.lblProductName->caption() + u'\n' + splash.lblPlatform->caption() + u'\n' +
              splash.lblVersion->caption());
  box.setInformativeText(splash.Label2->caption());
  box.exec();
}

void CanvasWindow::pointed(const Element* element) {
  status_->describe(element ? describe(state_, *element, ui_.hands.screen()) : QString());
}

// The other windows come up in the same breath, so the focus is asked for behind them.
void CanvasWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (!event->spontaneous()) QTimer::singleShot(0, this, &CanvasWindow::takeFocus);
}

void CanvasWindow::takeFocus() {
  activateWindow();
  view_->canvas().setFocus();
}

}  // namespace veneerer
