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
#include "ui/texts.h"

namespace veneerer {

namespace {

constexpr QSize kSheet(620, 660);  // where the screen has that much room, device-independent pixels

struct Gesture {
  const char* keys;
  const char* what;
};

constexpr Gesture kCanvasKeys[] = {
    {QT_TRANSLATE_NOOP("Ui", "Arrow keys"),
     QT_TRANSLATE_NOOP("Ui", "Move what is selected, else what is in hand, by a pixel")},
    {QT_TRANSLATE_NOOP("Ui", "Shift+Arrow keys"), QT_TRANSLATE_NOOP("Ui", "Move it by ten pixels")},
    {QT_TRANSLATE_NOOP("Ui", "Enter"),
     QT_TRANSLATE_NOOP("Ui", "Click what is selected, else what is in hand")},
    {QT_TRANSLATE_NOOP("Ui", "Escape"), QT_TRANSLATE_NOOP("Ui", "Select nothing; pick no colour")},
    {QT_TRANSLATE_NOOP("Ui", "Menu"), QT_TRANSLATE_NOOP("Ui", "List all that lies beneath the pointer")},
    {QT_TRANSLATE_NOOP("Ui", "Tab, Shift+Tab"), QT_TRANSLATE_NOOP("Ui", "Go to the next control, or back")},
    {QT_TRANSLATE_NOOP("Ui", "Alt and a letter"),
     QT_TRANSLATE_NOOP("Ui", "Go to the control or menu with that letter underlined")},
};

constexpr Gesture kCanvasMouse[] = {
    {QT_TRANSLATE_NOOP("Ui", "Click"),
     QT_TRANSLATE_NOOP("Ui", "Take an element in hand; nothing is selected any more")},
    {QT_TRANSLATE_NOOP("Ui", "Drag"), QT_TRANSLATE_NOOP("Ui", "Move an element")},
    {QT_TRANSLATE_NOOP("Ui", "Ctrl and drag"),
     QT_TRANSLATE_NOOP("Ui", "Move an element, snapping to what lines up")},
    {QT_TRANSLATE_NOOP("Ui", "Drag a handle"),
     QT_TRANSLATE_NOOP("Ui", "Size what is in hand; with Ctrl it snaps")},
    {QT_TRANSLATE_NOOP("Ui", "Right press"), QT_TRANSLATE_NOOP("Ui", "Choose a button's picture")},
    {QT_TRANSLATE_NOOP("Ui", "Shift and click"), QT_TRANSLATE_NOOP("Ui", "Select an element, or no longer")},
    {QT_TRANSLATE_NOOP("Ui", "Shift and drag"), QT_TRANSLATE_NOOP("Ui", "Select what lies in the band")},
    {QT_TRANSLATE_NOOP("Ui", "Ctrl and click"),
     QT_TRANSLATE_NOOP("Ui", "List all that lies beneath, hidden elements too")},
};

constexpr Gesture kViewMouse[] = {
    {QT_TRANSLATE_NOOP("Ui", "Ctrl and wheel"), QT_TRANSLATE_NOOP("Ui", "Zoom at the pointer")},
    {QT_TRANSLATE_NOOP("Ui", "Wheel, Shift and wheel"), QT_TRANSLATE_NOOP("Ui", "Scroll down, across")},
    {QT_TRANSLATE_NOOP("Ui", "Space or middle button, and drag"), QT_TRANSLATE_NOOP("Ui", "Pan")},
    {QT_TRANSLATE_NOOP("Ui", "Drag from a ruler"),
     QT_TRANSLATE_NOOP("Ui", "Lay out a guide; off the view it is taken away")},
    {QT_TRANSLATE_NOOP("Ui", "Drag the canvas's edge"), QT_TRANSLATE_NOOP("Ui", "Size the canvas window")},
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
      //: Between the keys of one command
      const QString separator = UiTexts::tr(" or ");
      QStringList keys;
      for (const QKeySequence& each : action->shortcuts())
        keys.append(each.toString(QKeySequence::NativeText));
      auto* row = new QTreeWidgetItem(&group, {plainText(*action), keys.join(separator)});
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
  lister.list(UiTexts::tr("Elsewhere"), window.findChildren<QAction*>());
}

template <std::size_t N>
void listGestures(QTreeWidget& sheet, const QString& title, const Gesture (&gestures)[N]) {
  QTreeWidgetItem* group = addGroup(sheet, title);
  for (const Gesture& gesture : gestures)
    new QTreeWidgetItem(group, {UiTexts::tr(gesture.what), UiTexts::tr(gesture.keys)});
}

QTreeWidget* makeList(const QWidget& window) {
  auto* sheet = new QTreeWidget;
  sheet->setHeaderLabels({UiTexts::tr("What"), UiTexts::tr("How")});
  sheet->setAccessibleName(UiTexts::tr("Keyboard and Mouse"));
  sheet->setToolTip(UiTexts::tr("All keys and gestures; Escape closes this window"));
  sheet->setUniformRowHeights(true);
  sheet->setRootIsDecorated(false);
  sheet->setItemsExpandable(false);
  listShortcuts(*sheet, window);
  listGestures(*sheet, UiTexts::tr("Keys on the Canvas"), kCanvasKeys);
  listGestures(*sheet, UiTexts::tr("Mouse on the Canvas"), kCanvasMouse);
  listGestures(*sheet, UiTexts::tr("Mouse on the View"), kViewMouse);
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
    dialog->setWindowTitle(UiTexts::tr("Keyboard and Mouse"));
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
