// The geometry commands on whole families, above all at the ends of their ranges.
#include "toolsfixture.h"

namespace veneerer {

using GeometryTest = ToolsTest;

TEST_F(GeometryTest, RangesDifferFromToolToTool) {
  current(22, 0);
  type(form6.Text3[0], "7");
  type(form6.Text5[0], "1000");
  click(*form6.Command5);
  click(form6.Command6[0]);
  EXPECT_EQ(form1.Label1[19].height(), 7);
  EXPECT_EQ(form1.Label1[19].width(), 0);
  EXPECT_EQ(valuesOf(form1.Label1, Property::Left, {12, 13}), (QList<float>{2407, 1507.5f}));
}

TEST_F(GeometryTest, XAndYCommandsMayReachDifferently) {
  current(1, 0);
  type(form6.Text5[0], "1000");
  type(form6.Text5[1], "1000");
  click(form6.Command6[0]);
  click(form6.Command6[1]);
  EXPECT_EQ(form1.lvButtons_H1[12].left(), 1407);
  EXPECT_EQ(valuesOf(form1.lvButtons_H1, Property::Top, {12, 13}), (QList<float>{1847, 907.5f}));
}

TEST_F(GeometryTest, OfTwoHalvesTheOneInHandIsSized) {
  type(form6.Text3[0], "7");
  current(149, 12);
  click(*form6.Command5);
  EXPECT_EQ(valuesOf(form1.Label64, Property::Height, {9, 10, 20}), (QList<float>{220, 7, 440}));
  current(137, 27);
  click(*form6.Command5);
  EXPECT_EQ(form1.lvButtons_H56[25].height(), 540);
  current(137, 3);
  click(*form6.Command5);
  EXPECT_EQ(valuesOf(form1.lvButtons_H56, Property::Height, {25, 30}), (QList<float>{7, 640}));
}

TEST_F(GeometryTest, AlignsOntoTheElementClickedLast) {
  current(50, 3);
  click(form6.Command8[0]);
  for (int i = 0; i < 7; ++i) EXPECT_EQ(form1.Label14[i].left(), 502.5f);
  EXPECT_EQ(form1.Label14[4].top(), 363);
  // With a title in hand the chart rows are aligned.
  current(30, 1);
  click(form6.Command8[1]);
  EXPECT_EQ(form1.Label30[9].top(), form1.Label30[1].top());
  EXPECT_EQ(form1.Label28[0].top(), 121);
}

TEST_F(GeometryTest, SpacesByTheElementsOwnSizeAndTheFirstField) {
  type(form6.Text6[0], "5");
  type(form6.Text6[1], "100");
  current(50, 0);
  click(form6.Command9[0]);
  EXPECT_EQ(valuesOf(form1.Label14, Property::Left, {0, 1, 2}),
            (QList<float>{201, 201 + 30 + 5, 236 + 40 + 5}));
  click(form6.Command9[1]);
  EXPECT_EQ(form1.Label14[1].top(), 121 + 60 + 5);
}

TEST_F(GeometryTest, ARangePastTheArrayStopsThereAndKeepsWhatItMoved) {
  current(112, 0);
  click(form6.Command9[0]);
  EXPECT_EQ(form1.Label9[28].left(), form1.Label9[27].left() + form1.Label9[28].width());
  current(43, 0);
  click(*form6.Command7);
  EXPECT_TRUE(form1.lvButtons_H23[1].picture().isNull());
  EXPECT_FALSE(form1.lvButtons_H24[0].picture().isNull());
}

TEST_F(GeometryTest, SnapsTowardsZero) {
  current(41, 0);
  form1.lvButtons_H22[0].place(-199.4f, 250.5f, 1, 1);
  type(form6.Text10[0], "100");
  type(form6.Text10[1], "2.5");
  click(*form6.Command13);
  EXPECT_EQ(form1.lvButtons_H22[0].left(), -100);
  // 250.5 counts as 250, the grid as 2 in the division and as 2.5 in the product.
  EXPECT_EQ(form1.lvButtons_H22[0].top(), 312.5f);
}

TEST_F(GeometryTest, GridFieldsAreFlooredOnlyWhereTheToolActs) {
  type(form6.Text10[0], "");
  type(form6.Text10[1], "-3");
  current(22, 0);
  click(*form6.Command13);
  EXPECT_EQ(form6.Text10[0].text(), u"");
  current(41, 0);
  form1.lvButtons_H22[0].setLeft(10.7f);
  click(*form6.Command13);
  EXPECT_EQ(form6.Text10[0].text(), u"1");
  EXPECT_EQ(form6.Text10[1].text(), u"1");
  EXPECT_EQ(form1.lvButtons_H22[0].left(), 11);
}

}  // namespace veneerer
