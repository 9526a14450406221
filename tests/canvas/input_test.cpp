// What the mouse does on the canvas: clicks, presses, the right press and drags.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "canvas/canvasinput.h"
#include "support/scriptedplatform.h"

namespace veneerer {

class CanvasInputTest : public testing::Test {
protected:
  CanvasInputTest() {
    state.form6.Combo1->setRows(styles(8));
    state.form6.Combo2->setRows(styles(7));
    state.form6.Combo4->setRows(styles(4));
  }
  static QStringList styles(int last) {
    QStringList rows;
    for (int i = 0; i <= last; ++i) rows.append(QStringLiteral("Style  %1").arg(i));
    return rows;
  }
  void drag(Element& element, float x, float y) {
    input.press(element, 0, 0, MouseButton::Left);
    input.move(element, x, y, MouseButton::Left);
  }

  State state;
  Form1& form1 = state.form1;
  Form6& form6 = state.form6;
  Globals& globals = state.globals;
  test::ScriptedPlatform world;
  CanvasInput input{state, world.platform};
};

TEST_F(CanvasInputTest, ClickShowsAButtonsValues) {
  Button& button = form1.lvButtons_H6[5];
  button.setCaption(QStringLiteral("F"));
  button.setButtonShape(3);
  button.setButtonStyle(4);
  button.setGradientMode(2);
  button.place(10, 20, 600.5f, 400);
  state.board.click(button);
  EXPECT_EQ(globals.SectionNumber, 9);
  EXPECT_EQ(globals.ElementIndex, 5);
  EXPECT_EQ(form6.Text1->text(), u"F");
  EXPECT_EQ(form6.Combo1->listIndex(), 3);
  EXPECT_EQ(form6.Combo2->listIndex(), 4);
  EXPECT_EQ(form6.Combo4->listIndex(), 2);
  EXPECT_EQ(form6.Text3[0].text(), u"400");
  EXPECT_EQ(form6.Text3[1].text(), u"600.5");
  EXPECT_EQ(form6.Text9[0].text(), u"");
}

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

TEST_F(CanvasInputTest, ClickOnASingleControlMostlyKeepsTheIndex) {
  state.board.click(form1.Label1[7]);
  state.board.click(*form1.Label42);
  EXPECT_EQ(globals.ElementIndex, 7);
  state.board.click(*form6.Label5);
  EXPECT_EQ(globals.SectionNumber, 5);
  EXPECT_EQ(globals.ElementIndex, 7);
  state.board.click(*form1.Label12);
  EXPECT_EQ(globals.ElementIndex, 0);
  state.board.click(form1.Label1[7]);
  state.board.click(*form1.lvButtons_H20);
  EXPECT_EQ(globals.SectionNumber, 22);
  EXPECT_EQ(globals.ElementIndex, 7);
}

TEST_F(CanvasInputTest, FieldsAreFilledWithTheNewSectionCurrent) {
  state.board.click(form1.Label1[7]);
  int section = 0;
  const Attachment watching = state.board.watch([&](const Change& change) {
    if (&change.element == &*form6.Combo1) section = globals.SectionNumber;
  });
  form6.Text3[0].setText(QStringLiteral("77"));
  state.board.click(form6.lvButtons_H5[1]);
  EXPECT_EQ(section, 8);
  EXPECT_EQ(globals.ElementIndex, 1);
  EXPECT_EQ(form6.Text3[0].text(), u"77");
}

TEST_F(CanvasInputTest, ClickPutsPlaceholders) {
  state.board.click(form1.Label3[4]);
  EXPECT_EQ(form1.Label3[4].caption(), u"Track  4");
  state.board.click(form1.Label2[3]);
  EXPECT_EQ(form1.Label2[3].caption(), u"Genre : ");
  form1.Label2[4].setCaption(QStringLiteral("own"));
  state.board.click(form1.Label2[4]);
  EXPECT_EQ(form1.Label2[4].caption(), u"own");
  state.board.click(form1.Label50[2]);
  EXPECT_EQ(form1.Label50[2].caption(), u"Played () Times 2.");
  state.board.click(form1.Label59[6]);
  EXPECT_EQ(form1.Label59[6].caption(), u"() Album(s)");
  EXPECT_EQ(form1.Label59[6].toolTipText(), u" 6 Albums Button");
  state.board.click(form1.Label64[9]);
  EXPECT_EQ(form1.Label64[9].caption(), u"Album Title  9");
  state.board.click(form1.Label64[10]);
  EXPECT_EQ(form1.Label64[10].caption(), u"Artist  1");
  state.board.click(form1.aicAlphaImage1[20]);
  EXPECT_EQ(form1.aicAlphaImage1[20].toolTipText(), u"Star Rating 20");
  // Crossed: the requested track's text goes to the track listing.
  state.board.click(form1.Label53[1]);
  EXPECT_EQ(form1.Label53[1].caption(), u"");
  EXPECT_EQ(form1.Label1[1].caption(), u"Track Listing  1");
}

TEST_F(CanvasInputTest, PressStoresTheAnchorAndPutsPlaceholders) {
  form1.Label41->setOpaque(false);
  input.press(*form1.Label41, 30, 40, MouseButton::Right);
  EXPECT_EQ(globals.DragAnchorX, 30);
  EXPECT_EQ(globals.DragAnchorY, 40);
  EXPECT_FALSE(form1.Label41->isOpaque());
  input.press(*form1.Label41, 30, 40, MouseButton::Left);
  EXPECT_TRUE(form1.Label41->isOpaque());
  input.press(*form1.Label12, 1, 1, MouseButton::Left);
  EXPECT_EQ(form1.Label12->caption(), u"Text Exmaple");
  input.press(form1.Label16[6], 1, 1, MouseButton::Right);
  input.press(form1.Label16[7], 1, 1, MouseButton::Right);
  EXPECT_EQ(form1.Label16[6].caption(), u"TRACK");
  EXPECT_EQ(form1.Label16[7].caption(), u"ALBUM");
  EXPECT_EQ(globals.SectionNumber, 0);
}

TEST_F(CanvasInputTest, AMiddlePressIsAPressLikeAnyOther) {
  form1.Label41->setOpaque(false);
  input.press(*form1.Label41, 30, 40, MouseButton::Middle);
  EXPECT_EQ(globals.DragAnchorX, 30);
  EXPECT_FALSE(form1.Label41->isOpaque());
  input.press(*form1.Label12, 1, 1, MouseButton::Middle);
  EXPECT_EQ(form1.Label12->caption(), u"Text Exmaple");
  input.press(form1.lvButtons_H1[0], 5, 6, MouseButton::Middle);
  EXPECT_EQ(globals.DragAnchorY, 6);
  EXPECT_TRUE(world.dialogs.filters.isEmpty()) << "only the right button asks for a picture";
}

TEST_F(CanvasInputTest, RightPressGivesAButtonItsPicture) {
  QTemporaryDir folder;
  const QString good = folder.filePath(QStringLiteral("up.bmp"));
  ASSERT_TRUE(QImage(4, 4, QImage::Format_RGB32).save(good));
  const QString bad = folder.filePath(QStringLiteral("broken.jpg"));
  ASSERT_TRUE(QFile::copy(QStringLiteral(VENEERER_SOURCE_DIR "/README.md"), bad));
  Button& button = form1.lvButtons_H23[1];
  ImageSlot& name = *state.names.of(button);
  for (const QString& file : {good, bad, QString(), good}) world.dialogs.files.enqueue(file);

  input.press(button, 0, 0, MouseButton::Right);
  EXPECT_EQ(world.dialogs.filters, QStringList{QStringLiteral("Image Files|*.bmp;*.jpg;*.gif")});
  EXPECT_EQ(button.picture().path(), good);
  EXPECT_EQ(button.pictureSize(), PictureSize::Stretched);
  EXPECT_EQ(name.text(), u"\\up.bmp");

  input.press(button, 0, 0, MouseButton::Right);
  EXPECT_EQ(world.dialogs.messages.size(), 1);
  EXPECT_EQ(button.picture().path(), good);
  EXPECT_EQ(name.text(), u"\\up.bmp");

  input.press(button, 0, 0, MouseButton::Right);
  EXPECT_TRUE(button.picture().isNull());
  EXPECT_TRUE(name.isEmpty());

  input.press(*form1.Picture17, 0, 0, MouseButton::Right);
  EXPECT_EQ(form1.Picture17->picture().path(), good);
  EXPECT_EQ(state.names.NowPlayingPanelName->text(), u"\\up.bmp");
}

TEST_F(CanvasInputTest, DragsWhileTheLimitHoldsAndNoFurther) {
  PictureBox& screen = form1.Picture1[12];
  screen.place(0, 0, 1000, 500);
  Button& key = form1.lvButtons_H22[0];
  key.setContainer(screen);
  key.place(100, 300, 200, 300);
  drag(key, 800, 250);
  EXPECT_EQ(key.left(), 900);
  // Its height isn't subtracted, so it could go below the edge; across it stands past it.
  EXPECT_EQ(key.top(), 550);
  drag(key, 10, 10);
  EXPECT_EQ(key.left(), 900);
  EXPECT_EQ(key.top(), 550);
  drag(key, -950, -600);
  drag(key, -10, -10);
  EXPECT_EQ(key.left(), -50);
  EXPECT_EQ(key.top(), -50);
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
  EXPECT_EQ(label.left(), 105.5f);
  EXPECT_EQ(label.top(), 100);
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
  EXPECT_EQ(track.left(), 0);
  EXPECT_EQ(track.top(), -5);
  Label& plays = form1.Label60[2];
  plays.place(10, 10, 50, 50);
  form1.Label1[2].place(10, 0, 50, 50);
  drag(plays, -5, -5);
  EXPECT_EQ(plays.left(), 5);
  EXPECT_EQ(plays.top(), 10);
  form1.Picture23->place(50, 50, 10, 10);
  form1.Picture21->place(0, 1, 10, 10);
  drag(*form1.Picture23, -5, -5);
  EXPECT_EQ(form1.Picture23->left(), 50);
  EXPECT_EQ(form1.Picture23->top(), 45);
  form1.lvButtons_H19->place(0, 0, 10, 10);
  drag(*form1.lvButtons_H19, -5, -5);
  EXPECT_EQ(form1.lvButtons_H19->left(), 0);
  EXPECT_EQ(form1.lvButtons_H19->top(), -5);
  drag(form1.Image2[0], -5000, -5000);
  EXPECT_EQ(form1.Image2[0].left(), -5000);
}

}  // namespace veneerer
