// The dialog Recolour: what is seen, what is told, and that nothing changes ahead of OK.
#include <QAccessible>
#include <QCheckBox>
#include <QDialog>
#include <QInputDialog>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTreeWidget>

#include "designer/restoredstate.h"
#include "recolouring/storedcolours.h"
#include "skin/skinsaver.h"
#include "support/shippedskins.h"
#include "ui/modal.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

class Recolour : public test::UiFixture {
protected:
  void SetUp() override {
    test::copyShippedSkin("Copper_Lounge(1024x768)", root.path(), "S");
    UiFixture::SetUp();
    form6().Combo6->select(3);
    open();
  }
  void open() {
    for (QAction* action : widget<QWidget>("Form1").findChildren<QAction*>())
      if (action->text() == "Rec&olour...") action->trigger();
    settle();
  }
  static void settle() { QTest::qWait(20); }
  QDialog& dialog() { return widget<QDialog>("recolour"); }
  bool isOpen() {
    const QWidgetList all = QApplication::topLevelWidgets();
    return std::ranges::any_of(
        all, [](const QWidget* w) { return w->objectName() == "recolour" && w->isVisible(); });
  }
  QSlider& slider(const char* name) { return *dialog().findChild<QSlider*>(name); }
  QTreeWidget& colours() { return *dialog().findChild<QTreeWidget*>(); }
  QListWidget& faint() { return *dialog().findChild<QListWidget*>(); }
  void turn(int hue, int lightness = 0) {
    slider("hue").setValue(hue);
    slider("lightness").setValue(lightness);
    settle();
  }
  void press(const QString& text) {
    for (QPushButton* button : dialog().findChildren<QPushButton*>())
      if (button->text() == text) return QTest::mouseClick(button, Qt::LeftButton);
    ADD_FAILURE() << "no button " << text.toStdString();
  }
  template <class B>
  void tick(const QString& text) {
    for (B* button : dialog().findChildren<B*>())
      if (button->text() == text) return button->click();
    ADD_FAILURE() << "no choice " << text.toStdString();
  }
  QImage seen() { return canvas().grab().toImage(); }
  /// Once all pictures are there.
  QImage seenAtRest() {
    QImage last = seen();
    EXPECT_TRUE(QTest::qWaitFor([&] {
      QTest::qWait(100);
      const QImage before = std::exchange(last, seen());
      return before == last;
    }));
    return last;
  }
  Dress turned(int hue) { return recoloured(storedColours(state()), {{}, {.hue = hue}}); }
  /// Everything that would tell of a change.
  QByteArray records() {
    QByteArray all;
    for (const NewFile& file : composedRecords(state())) all += file.bytes;
    return all;
  }
  /// Chooses a colour in the dialog of the colour menu that is open.
  void chooseColour(Colour colour) {
    world.dialogs.colours.enqueue(colour);
    for (QWidget* top : QApplication::topLevelWidgets())
      if (auto* menu = qobject_cast<QMenu*>(top); menu && menu->isVisible())
        for (QAction* action : menu->actions())
          if (action->text() == "&Choose...") {
            action->trigger();
            menu->close();
          }
    settle();
  }
};

TEST_F(Recolour, IsSeenAtOnceAndLeavesNoTraceOnCancel) {
  const QImage before = seenAtRest();
  const test::RestoredState state0(state());
  const QByteArray records0 = records();
  const qsizetype notes = state().notes.texts().size();
  const int steps = designer->history().stack().count();
  int told = 0;
  const Attachment watching = state().board.watch([&](const Change&) { ++told; });
  for (const int hue : {20, 90, 150}) {
    turn(hue, 60);
    EXPECT_NE(seen(), before);
    EXPECT_EQ(records(), records0) << "a save meanwhile would write what it would have";
  }
  EXPECT_GT(faint().count(), 0);
  press("Cancel");
  settle();
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(seenAtRest(), before);
  EXPECT_EQ(told, 0);
  EXPECT_EQ(state0.difference(test::RestoredState(state())), "");
  EXPECT_EQ(designer->history().stack().count(), steps);
  EXPECT_EQ(state().notes.texts().size(), notes);
  EXPECT_FALSE(designer->history().isModified());
}

TEST_F(Recolour, IsOneStepOnOkUndoneExactly) {
  const test::RestoredState before(state());
  const int steps = designer->history().stack().count();
  const Dress expected = turned(77);
  turn(10);
  // The latest word counts, shown or not.
  slider("hue").setValue(77);
  press("&OK");
  EXPECT_EQ(designer->history().stack().count(), steps + 1);
  for (const DressedColour& each : expected.colours())
    EXPECT_EQ(each.element->as<Colour>(each.property), each.colour);
  designer->history().undo();
  EXPECT_EQ(before.difference(test::RestoredState(state())), "");
  open();
  press("&OK");
  EXPECT_TRUE(designer->history().stack().canRedo());
  EXPECT_EQ(designer->history().stack().count(), steps + 1) << "nothing was asked for: the redo stays";
}

TEST_F(Recolour, WhatIsDoneMeanwhileIsDoneToTheSkinAsItIs) {
  turn(120);
  Button& button = form1().lvButtons_H6[2];
  designer->setProperty({&button}, Property::BackColor, Colour(0x0000FF));
  settle();
  EXPECT_EQ(button.backColor(), Colour(0x0000FF));
  designer->history().undo();
  designer->history().redo();
  EXPECT_EQ(button.backColor(), Colour(0x0000FF));
  settle();
  press("&OK");
  EXPECT_EQ(button.backColor(), Colour(0x00FF00)) << "and recoloured as it is now";
}

TEST_F(Recolour, ThisScreenFollowsTheScreenThatIsShown) {
  tick<QRadioButton>("&This Screen");
  turn(120);
  designer->choose(*form6().Combo6, 7);
  settle();
  const std::vector<ColourPlace> there = onScreen(state(), storedColours(state()), 7);
  const Dress expected = recoloured(there, {{}, {.hue = 120}});
  int uses = 0;
  for (int i = 0; i < colours().topLevelItemCount(); ++i) uses += colours().topLevelItem(i)->text(1).toInt();
  EXPECT_EQ(uses, static_cast<int>(there.size()));
  const auto coloursOf = [&](int entry) {
    std::vector<Colour> colours;
    for (const ColourPlace& place : onScreen(state(), storedColours(state()), entry))
      colours.push_back(place.colour());
    return colours;
  };
  const std::vector<Colour> elsewhere = coloursOf(3);
  press("&OK");
  EXPECT_FALSE(expected.isEmpty());
  for (const DressedColour& each : expected.colours())
    EXPECT_EQ(each.element->as<Colour>(each.property), each.colour);
  EXPECT_EQ(coloursOf(3), elsewhere);
}

TEST_F(Recolour, AColourIsGivenToAllItsPlaces) {
  QTreeWidgetItem* row = colours().topLevelItem(1);
  const Colour from = Colour::of(QColor(row->text(0)));
  const int count = row->text(1).toInt();
  EXPECT_TRUE(row->toolTip(0).contains("Colour of"));
  colours().setCurrentItem(row);
  press("&Replace...");
  chooseColour(0x123457);
  EXPECT_EQ(row->text(2), "#573412");
  turn(0, 30);
  EXPECT_EQ(row->text(2), "#573412") << "what is replaced isn't turned";
  turn(0);
  press("&OK");
  int has = 0;
  for (const ColourPlace& place : storedColours(state())) {
    EXPECT_NE(place.colour(), from);
    has += place.colour() == Colour(0x123457) ? 1 : 0;
  }
  EXPECT_EQ(has, count);
}

TEST_F(Recolour, AClickOnAFaintCaptionGoesToItsElement) {
  turn(0, 80);
  ASSERT_TRUE(QTest::qWaitFor([&] { return faint().count() > 50; }, 60'000));
  QListWidgetItem* last = faint().item(faint().count() - 1);
  faint().scrollToItem(last);
  QTest::mouseClick(faint().viewport(), Qt::LeftButton, {}, faint().visualItemRect(last).center());
  ASSERT_EQ(designer->overlay().elements().size(), 1U);
  EXPECT_NE(form6().Combo6->listIndex(), 3);
  settle();
  EXPECT_TRUE(isOpen());
  press("R&eset");
  EXPECT_TRUE(QTest::qWaitFor([&] { return faint().count() == 0; }, 60'000));
}

TEST_F(Recolour, WithPicturesMakesANewSkinAndLeavesThisOne) {
  const test::Files before = test::filesBelow(path({}));
  turn(120);
  tick<QCheckBox>("&Pictures too (as a new Skin)");
  const test::OnModal<QInputDialog> name([](QInputDialog& box) {
    box.setTextValue("Green");
    box.accept();
  });
  press("Make &New Skin...");
  EXPECT_TRUE(name.came());
  EXPECT_EQ(form4().Combo3->text(), "Green");
  EXPECT_EQ(test::filesBelow(path({})), before);
  const test::Files made = test::filesBelow(root.filePath("Skins/Green"));
  EXPECT_EQ(made.keys(), before.keys());
  EXPECT_NE(made["images/backdrop.jpg"], before["images/backdrop.jpg"]);
  EXPECT_NE(made["menu.ini"], before["menu.ini"]);
  settle();
  EXPECT_FALSE(isOpen());
}

TEST_F(Recolour, AnotherSkinInHandEndsIt) {
  makeSkin("T");
  turn(120);
  designer->openSkin("T");
  settle();
  EXPECT_FALSE(isOpen());
}

TEST_F(Recolour, ItsControlsAreNamedTippedAndReached) {
  QList<QWidget*> left;
  for (QWidget* control : dialog().findChildren<QWidget*>())
    if ((control->focusPolicy() & Qt::TabFocus) && control->isEnabled() && control->isVisible() &&
        !qobject_cast<QAbstractScrollArea*>(control->parentWidget()) &&
        !qobject_cast<QAbstractSpinBox*>(control->parentWidget()))
      left.append(control);
  ASSERT_GT(left.size(), 12);
  for (QWidget* control : left) {
    EXPECT_FALSE(control->toolTip().isEmpty()) << control->metaObject()->className();
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty())
        << control->metaObject()->className();
  }
  dialog().activateWindow();
  colours().setFocus();
  for (int steps = 0; steps < 60; ++steps) {
    left.removeOne(QApplication::focusWidget());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  for (const QWidget* control : left) {
    const auto* option = qobject_cast<const QRadioButton*>(control);
    EXPECT_TRUE(option && !option->isChecked()) << "nothing leads to " << control->metaObject()->className();
  }
  EXPECT_LE(dialog().minimumSizeHint().height(), 700);
}

}  // namespace
}  // namespace veneerer
