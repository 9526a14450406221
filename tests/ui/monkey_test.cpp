// A monkey at the real windows: whatever mouse and keys do, it can be undone and redone exactly.
#include <QAbstractScrollArea>
#include <QTimer>
#include <QWheelEvent>
#include <random>

#include "designer/restoredstate.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

constexpr int kRounds = 6;
constexpr int kEventsPerRound = 150;

class Monkey : public test::UiFixture {
protected:
  void SetUp() override {
    test::copyShippedSkin(QStringLiteral("Black_and_Blue_gif_V8.0(800x600)"), root.path(),
                          QStringLiteral("S"));
    test::copyShippedSkin(QStringLiteral("Copper_Lounge(1024x768)"), root.path(), QStringLiteral("T"));
    UiFixture::SetUp();
    QApplication::setDoubleClickInterval(2);
    // Menus and boxes would wait for ever.
    closing_.callOnTimeout([] { dismiss(); });
    closing_.start(5);
  }

  static void dismiss() {
    if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    if (QWidget* modal = QApplication::activeModalWidget()) modal->close();
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

  /// What the monkey may touch: what takes the mouse or the keys.
  std::vector<QWidget*> reachable() {
    std::vector<QWidget*> found;
    for (QWidget* each : widget<QWidget>("Form1").findChildren<QWidget*>())
      if (each->isVisible() && each->isEnabled() && each->focusPolicy() != Qt::NoFocus) found.push_back(each);
    return found;
  }

  QWidget& anyWidget() {
    const std::vector<QWidget*> widgets = reachable();
    QWidget* chosen = widgets[below(static_cast<int>(widgets.size()))];
    if (auto* area = qobject_cast<QAbstractScrollArea*>(chosen)) return *area->viewport();
    return *chosen;
  }

  void doAnything() {
    answerAhead();
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

  /// The list of cover files follows the disk.
  test::RestoredState restored() { return test::RestoredState(state(), &*form4().File1); }

  std::mt19937 random{71};

private:
  QTimer closing_;
};

TEST_F(Monkey, WhateverItDoesIsUndoneAndRedoneExactly) {
  // More rounds on a patient machine: VENEERER_MONKEY_ROUNDS=700.
  bool isGiven = false;
  const int given = qEnvironmentVariableIntValue("VENEERER_MONKEY_ROUNDS", &isGiven);
  History& history = designer->history();
  int most = 0;
  for (int round = 0; round < (isGiven ? given : kRounds); ++round) {
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
