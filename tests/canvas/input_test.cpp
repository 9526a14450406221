// What the mouse does on the canvas: clicks, presses, the right press and drags.
#include <gtest/gtest.h>

#include <QPointF>

#include "canvas/canvasinput.h"
#include "support/scriptedplatform.h"

namespace veneerer {

class CanvasInputTest : public testing::Test {
protected:
  void drag(Element& element, float x, float y) {
    input.press(element, 0, 0, MouseButton::Left);
    input.move(element, x, y, MouseButton::Left);
  }
  static QPointF corner(const Element& element) { return QPointF(element.left(), element.top()); }

  State state;
  Form1& form1 = state.form1;
  Form6& form6 = state.form6;
  Globals& globals = state.globals;
  test::ScriptedPlatform world;
  CanvasInput input{state, world.platform};
};

TEST_F(CanvasInputTest, ClickFillsFontSizeAndPlaceOnlyForTheirSections) {
  form1.Label53[1].place(70, 80, 90, 100);
  form1.Label53[1].setFontSize(12);
  state.board.click(form1.Label53[1]);
  EXPECT_EQ(form6.Text9[0].text(), u"80");
  EXPECT_EQ(form6.Text9[1].text(), u"70");
  EXPECT_EQ(form6.Text4->text(), u"12");
  form1.Label32->setFontSize(30);
  state.board.click(*form1.Label32);
  EXPECT_EQ(globals.SectionNumber, 11);
  EXPECT_EQ(form6.Text4->text(), u"12");
}

TEST_F(CanvasInputTest, FieldsAreFilledWithTheNewSectionCurrent) {
  form6.Combo1->setRows({"Style  0"});
  int section = 0;
  const Attachment watching = state.board.watch([&](const Change& change) {
    if (&change.element == &*form6.Combo1) section = globals.SectionNumber;
  });
  form6.Text3[0].setText("77");
  state.board.click(form6.lvButtons_H5[1]);
  EXPECT_EQ(section, 8);
  EXPECT_EQ(globals.ElementIndex, 1);
  EXPECT_EQ(form6.Text3[0].text(), u"77");
}

TEST_F(CanvasInputTest, AClickPutsPlaceholders) {
  form1.Label2[4].setCaption("own");
  const std::pair<Label*, const char*> captions[] = {
      {&form1.Label3[4], "Track  4"},     {&form1.Label2[3], "Genre : "},
      {&form1.Label2[4], "own"},          {&form1.Label50[2], "Played () Times 2."},
      {&form1.Label59[6], "() Album(s)"}, {&form1.Label64[9], "Album Title  9"},
      {&form1.Label64[10], "Artist  1"},  {&form1.Label53[1], ""}};
  for (const auto& [label, caption] : captions) {
    state.board.click(*label);
    EXPECT_EQ(label->caption(), caption) << label->key().toStdString();
  }
  EXPECT_EQ(form1.Label1[1].caption(), u"Track Listing  1") << "crossed: a requested track's text goes there";
  state.board.click(form1.aicAlphaImage1[20]);
  EXPECT_EQ(form1.aicAlphaImage1[20].toolTipText(), u"Star Rating 20");
  EXPECT_EQ(form1.Label59[6].toolTipText(), u" 6 Albums Button");
}

TEST_F(CanvasInputTest, ALeftPressStoresTheAnchorAndTurnsSomeLabelsOpaque) {
  form1.Label41->setOpaque(false);
  input.press(*form1.Label41, 30, 40, MouseButton::Right);
  EXPECT_EQ(globals.DragAnchorX, 30);
  EXPECT_EQ(globals.DragAnchorY, 40);
  EXPECT_FALSE(form1.Label41->isOpaque());
  input.press(*form1.Label41, 30, 40, MouseButton::Left);
  EXPECT_TRUE(form1.Label41->isOpaque());
  for (Element* label : {&form1.Label16[6], &form1.Label16[7]}) input.press(*label, 1, 1, MouseButton::Right);
  EXPECT_EQ(form1.Label16[6].caption() + form1.Label16[7].caption(), u"TRACKALBUM");
  EXPECT_TRUE(world.dialogs.filters.isEmpty()) << "only a button and one panel take a picture";
  input.press(form1.lvButtons_H1[0], 0, 0, MouseButton::Right);
  EXPECT_EQ(world.dialogs.filters, QStringList("Image Files|*.bmp;*.jpg;*.gif"));
}

TEST_F(CanvasInputTest, DragsWhileTheLimitHoldsAndNoFurther) {
  PictureBox& screen = form1.Picture1[12];
  screen.place(0, 0, 1000, 500);
  Button& key = form1.lvButtons_H22[0];
  key.setContainer(screen);
  key.place(100, 300, 200, 300);
  drag(key, 800, 250);
  // Its height isn't subtracted, so it could go below the edge; across it stands past it.
  EXPECT_EQ(corner(key), QPointF(900, 550));
  drag(key, 10, 10);
  EXPECT_EQ(corner(key), QPointF(900, 550));
  drag(key, -950, -600);
  drag(key, -10, -10);
  EXPECT_EQ(corner(key), QPointF(-50, -50));
  Button& letter = form1.lvButtons_H8[0];
  letter.setContainer(screen);
  letter.place(100, 300, 200, 200);
  drag(letter, 0, 10);
  EXPECT_EQ(letter.top(), 300);
  letter.setLeft(800);
  drag(letter, 10, 0);
  EXPECT_EQ(letter.left(), 800) << "its edge stands on the container's";
}

TEST_F(CanvasInputTest, MovesOnlyWithTheLeftButtonFromTheLastAnchor) {
  Label& label = form1.Label1[0];
  label.place(100, 100, 50, 50);
  input.press(label, 20, 30, MouseButton::Left);
  input.move(label, 90, 90, MouseButton::None);
  input.move(label, 90, 90, MouseButton::Right);
  EXPECT_EQ(label.left(), 100);
  input.move(label, 25.5f, 30, MouseButton::Left);
  EXPECT_EQ(corner(label), QPointF(105.5, 100));
  form1.Picture9->place(100, 100, 50, 50);
  drag(*form1.Picture9, 5, 5);
  EXPECT_EQ(form1.Picture9->left(), 100);
}

TEST_F(CanvasInputTest, SomeLabelsAreHeldByAnother) {
  Label& track = form1.Label47[3];
  track.place(0, 0, 50, 50);
  form1.Label11[3].place(0, 10, 50, 50);
  form1.Label11[0].place(10, 10, 50, 50);
  drag(track, -5, -5);
  EXPECT_EQ(corner(track), QPointF(0, -5));
  Label& plays = form1.Label60[2];
  plays.place(10, 10, 50, 50);
  form1.Label1[2].place(10, 0, 50, 50);
  drag(plays, -5, -5);
  EXPECT_EQ(corner(plays), QPointF(5, 10));
  form1.Picture23->place(50, 50, 10, 10);
  form1.Picture21->place(0, 1, 10, 10);
  drag(*form1.Picture23, -5, -5);
  EXPECT_EQ(corner(*form1.Picture23), QPointF(50, 45));
  form1.lvButtons_H19->place(0, 0, 10, 10);
  drag(*form1.lvButtons_H19, -5, -5);
  EXPECT_EQ(corner(*form1.lvButtons_H19), QPointF(0, -5));
  drag(form1.Image2[0], -5000, -5000);
  EXPECT_EQ(form1.Image2[0].left(), -5000);
}

}  // namespace veneerer
