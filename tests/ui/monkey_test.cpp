// A monkey at the real windows, panels and dialogs: whatever mouse, wheel, keys and commands do, it can be
// undone and redone exactly. On a patient machine more of it, and another one:
//   VENEERER_MONKEY_EVENTS=100000 VENEERER_MONKEY_SEED=7 build/release/tests/test_ui --gtest_filter=Monkey.*
#include <QAbstractScrollArea>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTimer>
#include <QWheelEvent>
#include <random>

#include "designer/restoredstate.h"
#include "support/shippedskins.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

constexpr int kEvents = 1500;
constexpr int kEventsPerRound = 150;
constexpr int kEventsPerDialog = 12;

int given(const char* variable, int otherwise) {
  bool isGiven = false;
  const int number = qEnvironmentVariableIntValue(variable, &isGiven);
  return isGiven ? number : otherwise;
}

class Monkey : public test::UiFixture {
protected:
  void SetUp() override {
    test::copyTwoShippedSkins(root.path());
    UiFixture::SetUp();
    QApplication::setDoubleClickInterval(2);
    // Menus and boxes would wait for ever.
    tick();
  }

  /// A dialog that opens from within another one needs a timer of its own.
  void tick() {
    QTimer::singleShot(5, &ticking_, [this] {
      tick();
      goOnInside();
    });
  }

  void goOnInside() {
    if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal) return;
    // What would write anywhere is only closed.
    if (qobject_cast<QFileDialog*>(modal) || isInside_ || left_ == 0) return close(*modal);
    const QScopedValueRollback<bool> inside(isInside_, true);
    --left_;
    playIn(*modal);
  }
  void close(QWidget& modal) {
    if (auto* box = qobject_cast<QMessageBox*>(&modal))
      box->done(QMessageBox::Ok);
    else
      modal.close();
  }
  void playIn(QWidget& dialog) {
    const QPointer<QWidget> target = &anyWidgetOf(dialog);
    if (below(2) == 0)
      QTest::mouseClick(target, Qt::LeftButton, {}, anyPlace(*target));
    else
      atTheKeys(*target);
  }

  void dismiss() {
    goOnInside();
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->isVisible() && (window->objectName() == u"tryit" || window->objectName() == u"keySheet"))
        window->close();
  }

  unsigned below(int count) { return static_cast<unsigned>(random()) % static_cast<unsigned>(count); }
  template <class T, std::size_t N>
  T oneOf(const T (&choices)[N]) {
    return choices[below(N)];
  }
  QPoint anyPlace(const QWidget& widget) {
    return {static_cast<int>(below(std::max(1, widget.width()))),
            static_cast<int>(below(std::max(1, widget.height())))};
  }

  void answerAhead() {
    world.dialogs.colours.enqueue(static_cast<std::int32_t>(below(0xFFFFFF)));
    world.dialogs.fonts.enqueue(FontChoice{QStringLiteral("DejaVu Sans"), 11, true, false, false, false});
    world.dialogs.files.enqueue(form1().Picture1[9].picture().path());
    world.dialogs.answers.enqueue(below(2) == 0);
  }

  void atTheCanvas() {
    const Qt::MouseButton button =
        oneOf({Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton});
    const Qt::KeyboardModifiers keys = oneOf<Qt::KeyboardModifiers>(
        {Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier});
    QTest::mousePress(&canvas(), button, keys, anyPlace(canvas()));
    for (unsigned moves = below(4); moves > 0; --moves) QTest::mouseMove(&canvas(), anyPlace(canvas()));
    QTest::mouseRelease(&canvas(), button, keys, anyPlace(canvas()));
    if (below(6) == 0) QTest::mouseDClick(&canvas(), Qt::LeftButton, keys, anyPlace(canvas()));
  }

  void atTheWheel() {
    const QPointF place = anyPlace(canvas());
    QWheelEvent event(place, canvas().mapToGlobal(place), {}, QPoint(0, below(2) ? 120 : -120), Qt::NoButton,
                      oneOf<Qt::KeyboardModifiers>({Qt::NoModifier, Qt::ControlModifier}), Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&canvas(), &event);
  }

  void atTheKeys(QWidget& widget) {
    static constexpr int kKeys[] = {
        Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Tab,   Qt::Key_Backspace,
        Qt::Key_Delete, Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape, Qt::Key_Home,  Qt::Key_End,
        Qt::Key_1,      Qt::Key_5,      Qt::Key_0,     Qt::Key_A,      Qt::Key_Minus, Qt::Key_PageDown,
        Qt::Key_F3,     Qt::Key_F7,     Qt::Key_Menu};
    static constexpr int kCommands[] = {Qt::Key_Z,    Qt::Key_Z,        Qt::Key_Y,     Qt::Key_A,
                                        Qt::Key_C,    Qt::Key_V,        Qt::Key_0,     Qt::Key_9,
                                        Qt::Key_Plus, Qt::Key_PageDown, Qt::Key_PageUp};
    if (below(4) == 0)
      QTest::keyClick(&widget, static_cast<Qt::Key>(oneOf(kCommands)), Qt::ControlModifier);
    else
      QTest::keyClick(&widget, static_cast<Qt::Key>(oneOf(kKeys)),
                      oneOf<Qt::KeyboardModifiers>({Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier}));
  }

  /// What takes the mouse or the keys in a window; the window itself where nothing does.
  QWidget& anyWidgetOf(QWidget& window) {
    std::vector<QWidget*> found;
    for (QWidget* each : window.findChildren<QWidget*>())
      if (each->isVisible() && each->isEnabled() && each->focusPolicy() != Qt::NoFocus) found.push_back(each);
    if (found.empty()) return window;
    QWidget* chosen = found[below(static_cast<int>(found.size()))];
    if (auto* area = qobject_cast<QAbstractScrollArea*>(chosen)) return *area->viewport();
    return *chosen;
  }
  QWidget& anyWidget() { return anyWidgetOf(widget<QWidget>("Form1")); }

  void anyCommand() {
    std::vector<QAction*> commands;
    for (QAction* action : widget<QMainWindow>("Form1").menuBar()->findChildren<QAction*>())
      if (action->isEnabled() && !action->menu() && action->text() != QStringLiteral("&Quit"))
        commands.push_back(action);
    if (!commands.empty()) commands[below(static_cast<int>(commands.size()))]->trigger();
  }

  void doAnything() {
    answerAhead();
    left_ = kEventsPerDialog;
    if (below(30) == 0) return anyCommand();
    switch (below(8)) {
      case 0:
      case 1:
      case 2:
        return atTheCanvas();
      case 3:
        return atTheWheel();
      case 4:
        return atTheKeys(canvas());
      case 5:
        return atTheKeys(anyWidget());
      default: {
        QWidget& target = anyWidget();
        QTest::mouseClick(&target, Qt::LeftButton, {}, anyPlace(target));
      }
    }
  }

  void play(int events) {
    for (int event = 0; event < events; ++event) {
      doAnything();
      dismiss();
      if (event % 10 == 0) QApplication::processEvents();
    }
    // A click on a cover file waits for a second one.
    QTest::qWait(20);
  }

  /// The lists of cover files and of Skins follow the disk.
  test::RestoredState restored() { return test::RestoredState(state(), {&*form4().File1, &*form4().Combo3}); }

  std::mt19937 random{static_cast<unsigned>(given("VENEERER_MONKEY_SEED", 71))};

private:
  QObject ticking_;
  bool isInside_ = false;
  int left_ = 0;  ///< events until what is open is closed
};

TEST_F(Monkey, WhateverItDoesIsUndoneAndRedoneExactly) {
  const int rounds = given("VENEERER_MONKEY_EVENTS", kEvents) / kEventsPerRound;
  History& history = designer->history();
  int most = 0;
  for (int round = 0; round < rounds; ++round) {
    history.start();
    const test::RestoredState first = restored();
    play(kEventsPerRound);
    history.settle();
    history.redoAll();
    const test::RestoredState last = restored();
    const int steps = history.stack().count();
    most = std::max(most, steps);
    history.undoAll();
    QApplication::processEvents();
    ASSERT_EQ(first.difference(restored()), "") << "undone, round " << round;
    history.redoAll();
    QApplication::processEvents();
    ASSERT_EQ(last.difference(restored()), "") << "redone, round " << round;
    ASSERT_EQ(history.stack().count(), steps)
        << "showing it changes nothing, but there is " << history.stack().undoText().toStdString()
        << ", round " << round;
    // The next round begins with the Skin as it was.
    history.undoAll();
  }
  EXPECT_GT(most, 10) << "the monkey hardly did anything";
}

}  // namespace
}  // namespace veneerer
