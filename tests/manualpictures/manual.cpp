#include "manualpictures/manual.h"

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QTreeWidget>

#include "manualpictures/realwindows.h"

namespace veneerer::test {

namespace {

constexpr int kScreensRest = 20000;  // ms, in which all small pictures are drawn

class Photographer : public RealWindows {
public:
  Photographer(const QString& programFolder, const QString& target)
      : RealWindows(programFolder, target, {1366, 740}) {}

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
  void save(QWidget& shown, const QString& name, const QRect& part = {}) {
    QTest::qWait(kRest);
    write(part.isNull() ? shown.grab() : shown.grab(part), name);
  }

  /// The panel torn off, in that size, or as large as it wants to be.
  void savePanel(const QString& name, const QString& file, QSize size = {}) {
    QDockWidget& dock = panel(name);
    dock.setFloating(true);
    dock.resize(size.isEmpty() ? dock.sizeHint() : size);
    save(*dock.widget(), file);
    dock.setFloating(false);
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
    QWidget& all = *panel("outline").widget();
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
    QWidget& problems = *panel("problems").widget();
    QTest::qWait(4000);
    if (auto* rows = problems.findChild<QTreeWidget*>(); rows->topLevelItemCount() > 0)
      rows->setCurrentItem(rows->topLevelItem(0));
    savePanel("problems", "problems", {620, 320});
  }

  void compare() {
    QWidget& all = *panel("compare").widget();
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
    while (designer().history().undo()) {
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
    inDialog(entry, name, [&](QDialog& dialog) {
      if (!size.isEmpty()) dialog.resize(size);
      QTest::qWait(patience);
      save(dialog, file);
    });
  }

  void screens() {
    panel("screens");
    QTest::qWait(kScreensRest);
    widget<QListWidget>("screens").scrollToTop();
    savePanel("screens", "screens", {740, 620});
  }
};

}  // namespace

void photographManual(const QString& programFolder, const QString& target) {
  Photographer(programFolder, target).photographAll();
}

}  // namespace veneerer::test
