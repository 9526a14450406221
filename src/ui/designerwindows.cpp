#include "ui/designerwindows.h"

#include <QScreen>
#include <QStatusBar>
#include <QUndoView>

#include "elements/printable.h"
#include "ui/buttonsettingswindow.h"
#include "ui/comparepanel.h"
#include "ui/inspector.h"
#include "ui/outlinepanel.h"
#include "ui/problemscount.h"
#include "ui/reloadbutton.h"
#include "ui/screenspanel.h"
#include "ui/settingswindow.h"
#include "ui/texts.h"
#include "ui/texturewindow.h"
#include "ui/toolswindow.h"

namespace veneerer {

namespace {

QString mainTitle(const QString& skinName, const QString& caption) {
  if (skinName.isEmpty()) return QStringLiteral("[*]") + caption;
  QString skin = shownText(skinName);
  // The toolkit's mark for changes, doubled, stands for itself.
  skin.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
  return skin + QStringLiteral("[*] — ") + caption;
}

}  // namespace

DesignerWindows::DesignerWindows(Designer& designer)
    : hands_(designer),
      pictures_(hands_),
      disk_(hands_, pictures_),
      ui_{hands_, pictures_, disk_},
      splash_(ui_),
      chooser_(ui_),
      canvas_(ui_) {
  State& state = designer.state();
  bind(state.frmSplash, splash_, OnClose::Hide);
  // The splash stays up until a Skin is loaded.
  bind(state.form3, chooser_, OnClose::EndProgram)->beforeFirstShow([this] {
    chooser_.move(splash_.geometry().topRight() + QPoint(8, 0));
  });
  bindCanvas(state);
  addPanel(state.form6, new ToolsWindow(ui_), QStringLiteral("&Tools"), Qt::Key_F6);
  addPanel(state.form4, new SettingsWindow(ui_), QStringLiteral("&File Controls/Settings"), Qt::Key_F4);
  addPanel(state.form5, new TextureWindow(ui_), QStringLiteral("Texture &Viewer"), Qt::Key_F5);
  addPanel(state.form2, new ButtonSettingsWindow(ui_), QStringLiteral("&Button Settings"), Qt::Key_F2);
  addPanel("inspector", new Inspector(ui_), UiTexts::tr("&Inspector"), Qt::Key_F7);
  addPanel("outline", new OutlinePanel(ui_), UiTexts::tr("&Outline"), Qt::Key_F3);
  auto* problems = new ProblemsPanel(ui_);
  addPanel("problems", problems, UiTexts::tr("&Problems"), Qt::Key_F9);
  canvas_.statusBar()->insertPermanentWidget(1, new ReloadButton(hands_, disk_));
  canvas_.statusBar()->insertPermanentWidget(1, new ProblemsCount(*problems));
  addHistory();
  addPanel("screens", new ScreensPanel(ui_), UiTexts::tr("&Screens"), Qt::Key_F12);
  addPanel("compare", new ComparePanel(ui_), UiTexts::tr("Co&mpare"), Qt::Key_F10);
}

void DesignerWindows::bindCanvas(State& state) {
  WindowBinding* binding = bind(state.form1, canvas_, OnClose::EndProgram);
  const ComboBox& skin = *state.form4.Combo3;
  binding->setTitle([&state, &skin] { return mainTitle(skin.text(), state.form1.caption()); });
  binding->beforeFirstShow([this] {
    canvas_.move(canvas_.screen()->availableGeometry().topLeft());
    canvas_.arrange();
  });
  new Watch(skin, &canvas_, [binding] { binding->show(Property::Caption); });
}

WindowBinding* DesignerWindows::bind(Window& element, QWidget& widget, OnClose onClose) {
  return new WindowBinding(element, widget, onClose);
}

void DesignerWindows::addPanel(Window& element, QWidget* content, const QString& menuText, Qt::Key key) {
  auto* dock = new QDockWidget(&canvas_);
  dock->setWidget(content);
  dock->hide();
  bind(element, *dock, OnClose::Hide);
  canvas_.add({dock, &element, menuText, QKeySequence(key)});
}

// They aren't on the operator's mind until they are asked for.
void DesignerWindows::addPanel(const char* name, QWidget* content, const QString& menuText, Qt::Key key) {
  auto* dock = new QDockWidget(content->windowTitle(), &canvas_);
  dock->setWidget(content);
  dock->setObjectName(QString::fromLatin1(name));
  dock->hide();
  canvas_.add({dock, nullptr, menuText, QKeySequence(key)});
}

void DesignerWindows::addHistory() {
  auto* steps = new QUndoView(&hands_.history().stack());
  steps->setWindowTitle(UiTexts::tr("History"));
  steps->setEmptyLabel(UiTexts::tr("As it was loaded"));
  steps->setAccessibleName(steps->windowTitle());
  steps->setToolTip(UiTexts::tr("Click a step to go back or forward to it"));
  addPanel("history", steps, UiTexts::tr("&History"), Qt::Key_F8);
}

}  // namespace veneerer
