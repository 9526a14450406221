// The fields that edit the element in hand, above all where a Section has a rule of its own.
#include "toolsfixture.h"

namespace veneerer {

using FieldsTest = ToolsTest;

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

TEST_F(FieldsTest, CoverCaptionsAreAlignedTogetherButForTheFeaturedOne) {
  state.globals.LastCoverIndex->setValue(6);
  current(112, 3);
  form6.Combo5->select(2);
  EXPECT_EQ(valuesOf<int>(form1.Label9, Property::Alignment, {0, 6, 7}), (QList<int>{2, 2, 0}));
  current(113, 28);
  form6.Combo5->select(1);
  EXPECT_EQ(valuesOf<int>(form1.Label10, Property::Alignment, {0, 28}), (QList<int>{0, 1}));
  state.globals.LastCoverIndex->setValue(kHighestCover);
  current(113, 0);
  form6.Combo5->select(2);
  EXPECT_EQ(form1.Label10[28].alignment(), 2);
}

TEST_F(FieldsTest, NoRowChangesNothingAndTheSameRowCountsAsChosen) {
  Button& button = form1.lvButtons_H6[0];
  button.setButtonShape(4);
  button.setButtonStyle(4);
  current(9, 0);
  form6.Combo1->select(-1);
  form6.Combo2->select(-1);
  click(*form6.Command3);
  EXPECT_EQ(button.buttonShape(), 4);
  EXPECT_EQ(button.buttonStyle(), 4);
  form6.Combo2->select(3);
  button.setButtonStyle(1);
  form6.Combo2->select(3);
  EXPECT_EQ(button.buttonStyle(), 3);
}

}  // namespace veneerer
