// Undo and redo: what is a step, and what it brings back.
#include <gtest/gtest.h>

#include <algorithm>

#include "canvas/description.h"
#include "canvas/screens.h"
#include "designer/restoredstate.h"
#include "designer/skinfixture.h"
#include "painting/hittest.h"
#include "panels/textureslots.h"
#include "support/shippedskins.h"

namespace veneerer {
namespace {

class Undo : public test::SkinFixture {
protected:
  void SetUp() override {
    test::copyTwoShippedSkins(root.path());
    start();
  }
};

TEST_F(Undo, WhatBelongsTogetherIsOneStep) {
  History& history = designer->history();
  const auto steps = [&] { return history.stack().count(); };
  Button& button = form1().lvButtons_H1[2];
  designer->press(button, 0, 0, MouseButton::Left);
  designer->move(button, 30, 0, MouseButton::Left);
  designer->move(button, 0, 45, MouseButton::Left);
  EXPECT_EQ(history.stack().undoText(), "Place of " + elementTitle(state(), button));
  designer->click(button);
  EXPECT_EQ(steps(), 1) << "a drag and its click";
  for (const char* text : {"9", "90", "900"})
    designer->type(state().form6.Text3[0], QString::fromLatin1(text));
  EXPECT_EQ(steps(), 2) << "a burst of typing";
  EXPECT_TRUE(history.stack().undoText().startsWith(QStringLiteral("Height of ")));
  history.settle();
  designer->type(state().form6.Text3[0], QStringLiteral("800"));
  EXPECT_EQ(steps(), 3) << "the next burst";
  designer->press(button, 0, 0, MouseButton::Left);
  designer->move(button, 30, 0, MouseButton::Left);
  designer->move(button, -30, 0, MouseButton::Left);
  EXPECT_EQ(steps(), 3) << "there and back is no step";
  designer->choose(*state().form6.Combo6, 5);
  EXPECT_EQ(steps(), 3) << "neither is the choice of a screen";
  designer->tick(*form4().Check6, form4().Check6->isTicked() ? 0 : 1);
  EXPECT_EQ(history.stack().undoText(), QStringLiteral("Show Album Date and Genre"));
  designer->choose(*state().form6.Combo6, 9);
  history.undo();
  EXPECT_EQ(state().form6.Combo6->listIndex(), 5) << "the screen of the step shows";
  EXPECT_TRUE(isScreenShown(state(), 5));
}

TEST_F(Undo, ANudgeIsAPressAndAMoveInOneStep) {
  History& history = designer->history();
  Button& button = form1().lvButtons_H1[2];
  const float left = button.left();
  const float top = button.top();
  designer->nudge(button, 1, -10);
  designer->nudge(button, 1, 0);
  EXPECT_EQ(button.left(), left + 30);
  EXPECT_EQ(button.top(), top - 150);
  EXPECT_EQ(state().globals.DragAnchorX, 0);
  EXPECT_EQ(history.stack().count(), 1);
  designer->nudge(form1().lvButtons_H1[3], 0, 1);
  EXPECT_EQ(history.stack().count(), 2) << "another element is another step";
  history.settle();
  Label& within = form1().Label16[3];
  const float from = button.left();
  const QPointF seen = windowRect(within).topLeft();
  designer->nudge({within.container(), &within, &button}, 2, 0);
  EXPECT_EQ(history.stack().count(), 3) << "several are one step";
  EXPECT_EQ(button.left(), from + 30);
  EXPECT_EQ(windowRect(within).topLeft() - seen, QPointF(30, 0))
      << "what stands in another of them moves with that";
  Button& fixed = *form1().lvButtons_H20;
  const float place = fixed.left();
  designer->nudge(fixed, 5, 5);
  EXPECT_EQ(fixed.left(), place) << "what can't be dragged can't be nudged";
}

TEST_F(Undo, AHandlesDragTypesItsSizesInOneStep) {
  History& history = designer->history();
  designer->sizeInHand(300.0f, 300.0f);
  EXPECT_EQ(history.stack().count(), 0) << "nothing is in hand";
  Label& label = form1().Label4[0];
  designer->click(label);
  history.settle();
  const float before = label.width();
  const int count = history.stack().count();
  state().form6.Text3[1].set(Property::Text, QStringLiteral("1500"));
  label.setWidth(before);
  designer->sizeInHand(1500.0f, {});
  EXPECT_EQ(label.width(), 1500) << "what stands in the field doesn't count";
  designer->sizeInHand(1800.0f, 450.0f);
  designer->sizeInHand(2100.0f, 600.0f);
  EXPECT_EQ(state().form6.Text3[0].text(), QStringLiteral("600"));
  EXPECT_EQ(label.width(), 2100);
  EXPECT_EQ(label.height(), 600);
  designer->resizeCanvas(9000, 6000);
  designer->resizeCanvas(9015, 6000);
  EXPECT_EQ(history.stack().count(), count + 2);
  history.undo();
  history.undo();
  EXPECT_EQ(label.width(), before);
}

TEST_F(Undo, TheFieldsShowWhatIsInHand) {
  Button& button = form1().lvButtons_H1[2];
  const QString height = QString::number(button.height());
  designer->click(button);
  designer->type(state().form6.Text3[0], QStringLiteral("90"));
  designer->history().undo();
  EXPECT_EQ(state().form6.Text3[0].text(), height);
  EXPECT_EQ(button.height(), height.toFloat());
}

TEST_F(Undo, ALoadAndASaveAreTheCleanPlace) {
  History& history = designer->history();
  EXPECT_FALSE(history.isModified());
  designer->type(form4().Text1[0], QStringLiteral("900"));
  EXPECT_TRUE(history.isModified());
  history.undo();
  EXPECT_FALSE(history.isModified());
  history.redo();
  designer->save();
  EXPECT_FALSE(history.isModified());
  EXPECT_EQ(history.stack().count(), 1) << "a save is no step";
  history.undo();
  EXPECT_TRUE(history.isModified()) << "the disk holds what was undone";
  designer->reload(QStringLiteral("T"));
  EXPECT_FALSE(history.isModified());
  EXPECT_EQ(history.stack().undoText(), QStringLiteral("Skin T"));
  history.undo();
  EXPECT_EQ(form4().Combo3->text(), QStringLiteral("S"));
  EXPECT_TRUE(history.isModified());
}

TEST_F(Undo, OpeningASkinIsOneStepAndItsListIsNone) {
  makeSkin(QStringLiteral("U"));
  const ComboBox& skins = *form4().Combo3;
  const test::RestoredState before(state(), {&skins});
  designer->openSkin(QStringLiteral("T"));
  const test::RestoredState opened(state(), {&skins});
  EXPECT_EQ(skins.list(), (QStringList{"S", "T", "U"}));
  EXPECT_EQ(skins.text(), u"T");
  EXPECT_NE(before.difference(opened), "");
  QUndoStack& steps = designer->history().stack();
  EXPECT_EQ(steps.count(), 1);
  EXPECT_EQ(steps.undoText(), u"Skin T");
  EXPECT_TRUE(steps.isClean());
  designer->history().undo();
  EXPECT_EQ(before.difference(test::RestoredState(state(), {&skins})), "");
  EXPECT_EQ(skins.text(), u"S");
  EXPECT_EQ(skins.list(), (QStringList{"S", "T", "U"})) << "the list follows the disk";
  designer->history().redo();
  EXPECT_EQ(opened.difference(test::RestoredState(state(), {&skins})), "");
}

TEST_F(Undo, APictureIsReadAnew) {
  PictureBox& screen = form1().Picture1[3];
  const QString file = screen.picture().path();
  ASSERT_FALSE(file.isEmpty());
  world.dialogs.files.enqueue(form1().Picture1[9].picture().path());
  for (Element* thumbnail : state().form5.Image1.members()) {
    const TextureSlot slot = textureSlot(state(), *thumbnail);
    if (std::ranges::count(slot.canvas, &screen) > 0) designer->click(*thumbnail);
  }
  ASSERT_NE(screen.picture().path(), file);
  ASSERT_TRUE(QImage(40, 30, QImage::Format_RGB32).save(file, "BMP"));
  designer->history().undo();
  EXPECT_EQ(screen.picture().path(), file);
  EXPECT_EQ(screen.picture().image().size(), QSize(40, 30));
}

}  // namespace
}  // namespace veneerer
