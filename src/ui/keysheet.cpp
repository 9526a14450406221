#include "ui/keysheet.h"

#include <QAction>
#include <QDialog>
#include <QHeaderView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "ui/layouts.h"

namespace veneerer {

namespace {

constexpr QSize kSheet(620, 660);  // where the screen has that much room, device-independent pixels

struct Gesture {
  const char* keys;
  const char* what;
};

constexpr Gesture kCanvasKeys[] = {
    {"Arrow keys", "Move what is selected, else what is in hand, by a pixel"},
    {"Shift+Arrow keys", "Move it by ten pixels"},
    {"Enter", "Click what is selected, else what is in hand"},
    {"Escape", "Select nothing; pick no colour"},
    {"Menu", "List all that lies beneath the pointer"},
    {"Tab, Shift+Tab", "Go to the next control, or back"},
    {"Alt and a letter", "Go to the control or menu with that letter underlined"},
};

constexpr Gesture kCanvasMouse[] = {
    {"Click", "Take an element in hand; nothing is selected any more"},
    {"Drag", "Move an element"},
    {"Ctrl and drag", "Move an element, snapping to what lines up"},
    {"Drag a handle", "Size what is in hand; with Ctrl it snaps"},
    {"Right press", "Choose a button's picture"},
    {"Shift and click", "Select an element, or no longer"},
    {"Shift and drag", "Select what lies in the band"},
    {"Ctrl and click", "List all that lies beneath, hidden elements too"},
};

constexpr Gesture kViewMouse[] = {
    {"Ctrl and wheel", "Zoom at the pointer"},
    {"Wheel, Shift and wheel", "Scroll down, across"},
    {"Space or middle button, and drag", "Pan"},
    {"Drag from a ruler", "Lay out a guide; off the view it is taken away"},
    {"Drag the canvas's edge", "Size the canvas window"},
};

QString plainText(const QAction& action) {
  QString text = action.text();
  const QChar kept(0xFFFF);
  return text.replace(QStringLiteral("&&"), kept).remove(u'&').replace(kept, QStringLiteral("&"));
}

QTreeWidgetItem* addGroup(QTreeWidget& sheet, const QString& title) {
  auto* group = new QTreeWidgetItem(&sheet, {title});
  QFont font = sheet.font();
  font.setBold(true);
  group->setFont(0, font);
  group->setFirstColumnSpanned(true);
  return group;
}

class ShortcutLister {
public:
  explicit ShortcutLister(QTreeWidget& sheet) : sheet_(sheet) {}

  void list(const QString& title, const QList<QAction*>& actions) {
    QTreeWidgetItem* group = addGroup(sheet_, title);
    add(*group, actions);
    if (group->childCount() == 0) delete group;
  }

private:
  void add(QTreeWidgetItem& group, const QList<QAction*>& actions) {
    for (const QAction* action : actions) {
      if (action->menu()) add(group, action->menu()->actions());
      if (action->shortcuts().isEmpty() || listed_.contains(action)) continue;
      listed_.insert(action);
      QStringList keys;
      for (const QKeySequence& each : action->shortcuts())
        keys.append(each.toString(QKeySequence::NativeText));
      auto* row = new QTreeWidgetItem(&group, {plainText(*action), keys.join(QStringLiteral(" or "))});
      row->setToolTip(0, action->statusTip());
    }
  }

  QTreeWidget& sheet_;
  QSet<const QAction*> listed_;
};

void listShortcuts(QTreeWidget& sheet, const QWidget& window) {
  ShortcutLister lister(sheet);
  if (const auto* main = qobject_cast<const QMainWindow*>(&window))
    if (const auto* bar = qobject_cast<const QMenuBar*>(main->menuWidget()))
      for (const QAction* menu : bar->actions())
        if (menu->menu()) lister.list(plainText(*menu), menu->menu()->actions());
  lister.list(QStringLiteral("Elsewhere"), window.findChildren<QAction*>());
}

template <std::size_t N>
void listGestures(QTreeWidget& sheet, const char* title, const Gesture (&gestures)[N]) {
  QTreeWidgetItem* group = addGroup(sheet, QString::fromLatin1(title));
  for (const Gesture& gesture : gestures)
    new QTreeWidgetItem(group, {QString::fromLatin1(gesture.what), QString::fromLatin1(gesture.keys)});
}

QTreeWidget* makeList(const QWidget& window) {
  auto* sheet = new QTreeWidget;
  sheet->setHeaderLabels({QStringLiteral("What"), QStringLiteral("How")});
  sheet->setAccessibleName(QStringLiteral("Keyboard and Mouse"));
  sheet->setToolTip(QStringLiteral("All keys and gestures; Escape closes this window"));
  sheet->setUniformRowHeights(true);
  sheet->setRootIsDecorated(false);
  sheet->setItemsExpandable(false);
  listShortcuts(*sheet, window);
  listGestures(*sheet, "Keys on the Canvas", kCanvasKeys);
  listGestures(*sheet, "Mouse on the Canvas", kCanvasMouse);
  listGestures(*sheet, "Mouse on the View", kViewMouse);
  sheet->expandAll();
  sheet->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  sheet->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  sheet->header()->setStretchLastSection(false);
  sheet->setCurrentItem(sheet->topLevelItem(0));
  return sheet;
}

}  // namespace

void showKeySheet(QWidget& window) {
  const QString name = QStringLiteral("keySheet");
  auto* dialog = window.findChild<QDialog*>(name, Qt::FindDirectChildrenOnly);
  if (!dialog) {
    dialog = new QDialog(&window);
    dialog->setObjectName(name);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(QStringLiteral("Keyboard and Mouse"));
    auto* column = new QVBoxLayout(dialog);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(makeList(window));
    dialog->resize(kSheet.boundedTo(roomForDialog(window).size()));
  }
  dialog->show();
  dialog->raise();
  dialog->activateWindow();
}

}  // namespace veneerer
