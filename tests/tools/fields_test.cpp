// The fields that edit the element in hand, above all where a Section has a rule of its own.
#include "canvas/canvasinput.h"
#include "canvas/screens.h"
#include "toolsfixture.h"

namespace veneerer {

using FieldsTest = ToolsTest;

TEST_F(FieldsTest, SizesTakeNumbersAboveZeroOnly) {
  current(22, 3);
  for (const char* text : {"0", "", "-5", "wide", "1e99"}) {
    type(form6.Text3[0], text);
    EXPECT_EQ(form1.Label1[3].height(), 100) << text;
  }
  type(form6.Text3[0], " 12.5 twips");
  EXPECT_EQ(form1.Label1[3].height(), 12.5f);
  type(form6.Text3[1], "30");
  EXPECT_EQ(form1.Label1[3].width(), 30);
  EXPECT_EQ(form1.Label1[2].width(), 40);
}

TEST_F(FieldsTest, AButtonRebuildsItsOutlineWhenItIsSized) {
  std::vector<int> shapes;
  form1.lvButtons_H6[2].setButtonShape(4);
  const Attachment watching = state.board.watch([&](const Change& change) {
    if (change.property == Property::ButtonShape)
      shapes.push_back(change.element.as<std::int32_t>(Property::ButtonShape));
  });
  current(9, 2);
  type(form6.Text3[0], "77");
  EXPECT_EQ(shapes, (std::vector<int>{0, 4}));
  EXPECT_EQ(form1.lvButtons_H6[2].height(), 77);
  shapes.clear();
  form1.lvButtons_H13[1].setButtonShape(4);
  shapes.clear();
  current(24, 1);
  type(form6.Text3[0], "78");
  EXPECT_TRUE(shapes.empty());
  type(form6.Text3[1], "78");
  EXPECT_EQ(shapes.size(), 2u);
  current(48, 1);
  form1.lvButtons_H5[1].setButtonShape(4);
  shapes.clear();
  type(form6.Text3[1], "79");
  EXPECT_EQ(form1.lvButtons_H5[1].width(), 79);
  EXPECT_TRUE(shapes.empty());
}

TEST_F(FieldsTest, AMenuButtonsHeightBringsShapeAndPictureSize) {
  form1.lvButtons_H1[3].setButtonShape(2);
  form6.Combo1->select(5);
  current(1, 3);
  type(form6.Text3[1], "80");
  EXPECT_EQ(form1.lvButtons_H1[3].buttonShape(), 2);
  type(form6.Text3[0], "90");
  EXPECT_EQ(form1.lvButtons_H1[3].height(), 90);
  EXPECT_EQ(form1.lvButtons_H1[3].buttonShape(), 5);
  EXPECT_EQ(form1.lvButtons_H1[3].pictureSize(), PictureSize::Fitted);
}

TEST_F(FieldsTest, AGeneralSamplesWidthGoesToTheSliderThumb) {
  form1.lvButtons_H5[1].setButtonShape(3);
  current(8, 1);
  type(form6.Text3[0], "90");
  type(form6.Text3[1], "95");
  EXPECT_EQ(form6.lvButtons_H5[1].height(), 90);
  EXPECT_EQ(form6.lvButtons_H5[1].width(), 30);
  EXPECT_EQ(form1.lvButtons_H5[1].height(), 60);
  EXPECT_EQ(form1.lvButtons_H5[1].width(), 95);
  EXPECT_EQ(form1.lvButtons_H5[1].buttonShape(), 3);
}

TEST_F(FieldsTest, TheFirstSlidersThumbFollowsItsTrack) {
  form1.Picture13[0].setWidth(333);
  current(47, 0);
  type(form6.Text3[0], "90");
  EXPECT_EQ(form1.lvButtons_H5[0].width(), 333);
  current(47, 1);
  type(form6.Text3[0], "91");
  EXPECT_EQ(form1.lvButtons_H5[1].width(), 30);
}

TEST_F(FieldsTest, PlaceIsForScreensAndAboveZero) {
  current(101, 5);
  type(form6.Text9[0], "-9");
  EXPECT_EQ(form1.Picture1[5].top(), 423.5f);
  type(form6.Text9[0], "9");
  type(form6.Text9[1], "8");
  EXPECT_EQ(form1.Picture1[5].top(), 9);
  EXPECT_EQ(form1.Picture1[5].left(), 8);
}

TEST_F(FieldsTest, CoverCaptionsAreAlignedTogetherButForTheFeaturedOne) {
  state.globals.LastCoverIndex->setValue(6);
  current(112, 3);
  form6.Combo5->select(2);
  EXPECT_EQ(form1.Label9[0].alignment(), 2);
  EXPECT_EQ(form1.Label9[6].alignment(), 2);
  EXPECT_EQ(form1.Label9[7].alignment(), 0);
  EXPECT_EQ(form1.Label10[0].alignment(), 0);
  current(113, 28);
  form6.Combo5->select(1);
  EXPECT_EQ(form1.Label10[0].alignment(), 0);
  EXPECT_EQ(form1.Label10[28].alignment(), 1);
  state.globals.LastCoverIndex->setValue(kHighestCover);
  current(113, 0);
  form6.Combo5->select(2);
  EXPECT_EQ(form1.Label10[28].alignment(), 2);
}

TEST_F(FieldsTest, NoRowChangesNothing) {
  form1.lvButtons_H6[0].setButtonShape(4);
  form1.lvButtons_H6[0].setButtonStyle(4);
  current(9, 0);
  form6.Combo1->select(-1);
  form6.Combo2->select(-1);
  state.board.click(*form6.Command3);
  EXPECT_EQ(form1.lvButtons_H6[0].buttonShape(), 4);
  EXPECT_EQ(form1.lvButtons_H6[0].buttonStyle(), 4);
}

TEST_F(FieldsTest, ARowCountsAsChosenAlsoWhenItIsTheSame) {
  current(9, 0);
  form6.Combo2->select(3);
  form1.lvButtons_H6[0].setButtonStyle(1);
  form6.Combo2->select(3);
  EXPECT_EQ(form1.lvButtons_H6[0].buttonStyle(), 3);
}

TEST_F(FieldsTest, AClickFillsTheFieldsAndThereTheyAct) {
  CanvasInput input(state, world.platform);
  form1.lvButtons_H1[2].setPictureSize(PictureSize::Side24);
  form1.lvButtons_H1[2].setCaption(QStringLiteral("Queue"));
  state.board.click(form1.lvButtons_H1[2]);
  // The height that the click shows counts as typed.
  EXPECT_EQ(form1.lvButtons_H1[2].pictureSize(), PictureSize::Fitted);
  state.board.click(form1.lvButtons_H2[1]);
  EXPECT_EQ(form1.lvButtons_H1[2].caption(), u"Queue");
  type(*form6.Text1, "Stop");
  EXPECT_EQ(form1.lvButtons_H2[1].caption(), u"Stop");
}

TEST_F(FieldsTest, EditSectionShowsAScreen) {
  QStringList entries;
  for (const auto entry : kScreenEntries) entries.append(QStringView(entry).toString());
  form6.Combo6->setRows(entries);
  form6.Combo6->select(30);
  EXPECT_TRUE(form1.Picture12[0].isVisible());
  EXPECT_FALSE(form1.Picture1[0].isVisible());
}

}  // namespace veneerer
