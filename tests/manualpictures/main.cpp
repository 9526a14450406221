// Makes the pictures of the manual from the real windows, at work on Skins that come with the program.
//
//     manualpictures PROGRAM-FOLDER FOLDER
//
// PROGRAM-FOLDER holds a copy of "Skins" and "images", FOLDER gets the pictures. The screen should have 1366
// by 768 pixels.
#include <QDialog>
#include <QDockWidget>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QTreeWidget>
#include <QtTest>

#include "designer/designer.h"
#include "support/scriptedplatform.h"
#include "ui/application.h"
#include "ui/canvaswidget.h"
#include "ui/designerwindows.h"
#include "ui/modal.h"
#include "ui/qtplatform.h"

namespace veneerer::test {
namespace {

constexpr int kRest = 400;           // ms, in which windows are laid out and painted
constexpr int kScreensRest = 20000;  // ms, in which all small pictures are drawn

class Photographer {
public:
  Photographer(const QString& programFolder, const QString& target)
      : world_(ScriptedDialogs::Unexpected::Agree), target_(target) {
    world_.platform.folder.path = programFolder;
    world_.settings.values.insert("Settings/Skin", "Copper_Lounge(1024x768)");
    world_.platform.screen = primaryScreen();
    designer_ = std::make_unique<Designer>(world_.platform);
    windows_ = std::make_unique<DesignerWindows>(*designer_);
    designer_->startUp();
    window().resize(1366, 740);
    QTest::qWait(2000);
  }

  void photographAll() {
    workbench();
    tools();
    simplePanels();
    inspector();
    outline();
    placing();
    history();
    captions();
    compare();
    dialogs();
    screens();
  }

private:
  template <class W>
  W& widget(const QString& name) {
    for (QWidget* each : QApplication::allWidgets())
      if (auto* found = dynamic_cast<W*>(each); found && found->objectName() == name) return *found;
    throw std::logic_error("no widget " + name.toStdString());
  }
  QMainWindow& window() { return widget<QMainWindow>("Form1"); }
  CanvasWidget& canvas() { return widget<CanvasWidget>("canvas"); }
  State& state() { return designer_->state(); }

  void save(QWidget& shown, const QString& name, const QRect& part = {}) {
    QTest::qWait(kRest);
    const QPixmap picture = part.isNull() ? shown.grab() : shown.grab(part);
    if (!picture.save(target_ + '/' + name + ".png"))
      throw std::runtime_error("can't write " + name.toStdString());
  }

  void trigger(const QString& text) {
    for (QAction* action : window().findChildren<QAction*>())
      if (action->text() == text) return action->trigger();
    throw std::logic_error("no entry " + text.toStdString());
  }

  QWidget& panel(const QString& name) {
    auto& dock = widget<QDockWidget>(name);
    dock.show();
    dock.raise();
    QTest::qWait(kRest);
    return *dock.widget();
  }

  /// The panel torn off, in that size, or as large as it wants to be.
  void savePanel(const QString& name, const QString& file, QSize size = {}) {
    auto& dock = widget<QDockWidget>(name);
    dock.show();
    dock.setFloating(true);
    dock.resize(size.isEmpty() ? dock.sizeHint() : size);
    save(*dock.widget(), file);
    dock.setFloating(false);
  }

  void showScreen(int entry) {
    state().form6.Combo6->select(entry);
    QTest::qWait(kRest);
  }

  QPoint middleOf(const Element& element) { return canvas().placeOf(element).center(); }
  void click(const Element& element, Qt::KeyboardModifiers keys = {}) {
    QTest::mouseClick(&canvas(), Qt::LeftButton, keys, middleOf(element));
  }

  void type(const QString& field, const QString& text) {
    auto& line = widget<QLineEdit>(field);
    line.window()->activateWindow();
    line.setFocus();
    line.selectAll();
    QTest::keyClicks(&line, text);
  }

  void workbench() {
    showScreen(9);
    click(state().form1.lvButtons_H4[0]);
    panel("Form6");
    save(window(), "workbench");
  }

  void tools() {
    widget<QAbstractButton>("Form6.Option1(1)").click();
    scaleEvenly();
    savePanel("Form6", "tools");
    panel("Form6");
    for (const char* frame : {"Place and Size", "Colour Settings", "Re-Scale Skin"}) saveFrame(frame);
    click(state().form1.Label9[1]);
    saveFrame("Fonts");
  }
  void saveFrame(const QString& title) {
    save(widget<QWidget>(title), "tools-" + QString(title).toLower().replace(' ', '-'));
  }
  // A choice of the menu, which lists what there is when it comes up.
  void scaleEvenly() {
    QMenu& sizes = *widget<QPushButton>("evenScale").menu();
    Q_EMIT sizes.aboutToShow();
    for (QAction* size : sizes.actions())
      if (size->text().startsWith("To 1280 x 960")) return size->trigger();
  }

  void simplePanels() {
    savePanel("Form4", "settings");
    panel("Form4");
    save(widget<QWidget>("Covers File"), "covers");
    savePanel("Form5", "textures");
    savePanel("Form2", "button-settings");
  }

  void inspector() {
    showScreen(9);
    click(state().form1.lvButtons_H4[0]);
    savePanel("inspector", "inspector", {520, 460});
  }

  void outline() {
    QWidget& all = panel("outline");
    QTest::keyClicks(all.findChild<QLineEdit*>(), "play");
    savePanel("outline", "outline", {560, 480});
  }

  void placing() {
    showScreen(15);
    trigger("&Grid");
    Element& dragged = state().form1.lvButtons_H41[2];
    const QPoint from = middleOf(dragged);
    QTest::mousePress(&canvas(), Qt::LeftButton, {}, from);
    QTest::mouseMove(&canvas(), from + QPoint(3, 3));
    QTest::mouseMove(&canvas(), from + QPoint(6, 0));
    save(widget<QWidget>("view"), "placing");
    QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, from + QPoint(6, 0));
    trigger("&Grid");
  }

  void history() {
    for (int i = 0; i < 3; ++i) QTest::keyClick(&canvas(), Qt::Key_Down, Qt::ShiftModifier);
    click(state().form1.lvButtons_H41[0]);
    panel("Form6");
    type("Form6.Text1", "Play Next");
    savePanel("history", "history", {420, 220});
  }

  void captions() {
    panel("Form6");
    type("Form6.Text1", "Play, Next");
    auto& field = widget<QLineEdit>("Form6.Text1");
    QWidget& all = *field.window();
    const QPoint corner = field.mapTo(&all, QPoint());
    save(all, "caption-note", QRect(corner - QPoint(110, 40), QSize(field.width() + 240, 130)));
    QWidget& problems = panel("problems");
    QTest::qWait(4000);
    if (auto* rows = problems.findChild<QTreeWidget*>(); rows->topLevelItemCount() > 0)
      rows->setCurrentItem(rows->topLevelItem(0));
    savePanel("problems", "problems", {620, 320});
  }

  void compare() {
    QWidget& all = panel("compare");
    for (QAbstractButton* button : all.findChildren<QAbstractButton*>())
      if (button->text() == "&Compare") button->click();
    savePanel("compare", "compare", {680, 300});
  }

  void recolour() {
    trigger("Rec&olour...");
    auto& dialog = widget<QDialog>("recolour");
    dialog.findChild<QSlider*>("hue")->setValue(160);
    QTest::qWait(2000);
    save(window(), "recoloured", canvasPart());
    save(dialog, "recolour");
    dialog.reject();
  }
  QRect canvasPart() {
    auto& view = widget<QWidget>("view");
    return QRect(view.mapTo(&window(), QPoint()), view.size());
  }

  void dialogs() {
    while (designer_->history().undo()) {
    }
    QTest::qWait(kRest);
    showScreen(9);
    recolour();
    photographModal("New S&kin...", "newSkin", 3000, "new-skin");
    photographModal("&Open Skin...", "openSkin", 4000, "open-skin", {720, 420});
    photographModal("&Take from Another Skin...", "takeLook", kRest, "take");
  }

  // What the dialog shows is drawn aside.
  void photographModal(const QString& entry, const QString& name, int patience, const QString& file,
                       QSize size = {}) {
    const OnModal<QDialog> operation([&](QDialog& dialog) {
      if (dialog.objectName() != name) throw std::logic_error("another dialog than " + name.toStdString());
      if (!size.isEmpty()) dialog.resize(size);
      QTest::qWait(patience);
      save(dialog, file);
      dialog.reject();
    });
    trigger(entry);
  }

  void screens() {
    panel("screens");
    QTest::qWait(kScreensRest);
    widget<QListWidget>("screens").scrollToTop();
    savePanel("screens", "screens", {740, 620});
  }

  ScriptedPlatform world_;
  QString target_;
  std::unique_ptr<Designer> designer_;
  std::unique_ptr<DesignerWindows> windows_;
};

}  // namespace
}  // namespace veneerer::test

int main(int argc, char** argv) {
  veneerer::Application application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 3) qFatal("usage: manualpictures PROGRAM-FOLDER FOLDER");
  QTimer::singleShot(0, [&] {
    try {
      veneerer::test::Photographer(arguments[1], arguments[2]).photographAll();
      QCoreApplication::exit(0);
    } catch (const std::exception& error) {
      qFatal("%s", error.what());
    }
  });
  return QApplication::exec();
}
