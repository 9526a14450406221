// The geometry commands on whole families, above all at the ends of their ranges.
#include "canvas/sections.h"
#include "tools/geometrytables.h"
#include "toolsfixture.h"

namespace veneerer {

using GeometryTest = ToolsTest;

TEST_F(GeometryTest, EveryRangeStartsAtAMemberOfAFamilyWithASection) {
  for (const FamilyRanges& row : kFamilyRanges) {
    const Family& family = row.family(state);
    EXPECT_NE(sectionOf(state, family), 0) << qPrintable(family.name());
    EXPECT_EQ(std::ranges::count_if(
                  kFamilyRanges, [&](const FamilyRanges& other) { return &other.family(state) == &family; }),
              1);
    for (const IndexRange& range : row.ranges)
      if (!range.isEmpty()) {
        EXPECT_NE(family.find(range.first), nullptr) << qPrintable(family.name());
      }
  }
  EXPECT_EQ(std::size(kFamilyRanges), 103u);
}

TEST_F(GeometryTest, RangesDifferFromToolToTool) {
  current(22, 0);
  type(form6.Text3[0], "7");
  type(form6.Text5[0], "1000");
  state.board.click(*form6.Command5);
  state.board.click(form6.Command6[0]);
  EXPECT_EQ(form1.Label1[19].height(), 7);
  EXPECT_EQ(form1.Label1[19].width(), 0);
  EXPECT_EQ(form1.Label1[12].left(), 2407);
  EXPECT_EQ(form1.Label1[13].left(), 1507.5f);
}

TEST_F(GeometryTest, XAndYCommandsMayReachDifferently) {
  current(1, 0);
  type(form6.Text5[0], "1000");
  type(form6.Text5[1], "1000");
  state.board.click(form6.Command6[0]);
  state.board.click(form6.Command6[1]);
  EXPECT_EQ(form1.lvButtons_H1[12].left(), 1407);
  EXPECT_EQ(form1.lvButtons_H1[12].top(), 1847);
  EXPECT_EQ(form1.lvButtons_H1[13].top(), 907.5f);
}

TEST_F(GeometryTest, OfTwoHalvesTheOneInHandIsSized) {
  type(form6.Text3[0], "7");
  current(149, 12);
  state.board.click(*form6.Command5);
  EXPECT_EQ(form1.Label64[9].height(), 220);
  EXPECT_EQ(form1.Label64[10].height(), 7);
  EXPECT_EQ(form1.Label64[20].height(), 440);
  current(137, 27);
  state.board.click(*form6.Command5);
  EXPECT_EQ(form1.lvButtons_H56[25].height(), 540);
  current(137, 3);
  state.board.click(*form6.Command5);
  EXPECT_EQ(form1.lvButtons_H56[25].height(), 7);
  EXPECT_EQ(form1.lvButtons_H56[30].height(), 640);
}

TEST_F(GeometryTest, AlignsOntoTheElementClickedLast) {
  current(50, 3);
  state.board.click(form6.Command8[0]);
  for (int i = 0; i < 7; ++i) EXPECT_EQ(form1.Label14[i].left(), 502.5f);
  EXPECT_EQ(form1.Label14[4].top(), 363);
  // With a title in hand the chart rows are aligned.
  current(30, 1);
  state.board.click(form6.Command8[1]);
  EXPECT_EQ(form1.Label30[9].top(), form1.Label30[1].top());
  EXPECT_EQ(form1.Label28[0].top(), 121);
}

TEST_F(GeometryTest, SpacesByTheElementsOwnSizeAndTheFirstField) {
  type(form6.Text6[0], "5");
  type(form6.Text6[1], "100");
  current(50, 0);
  state.board.click(form6.Command9[0]);
  EXPECT_EQ(form1.Label14[0].left(), 201);
  EXPECT_EQ(form1.Label14[1].left(), 201 + 30 + 5);
  EXPECT_EQ(form1.Label14[2].left(), 236 + 40 + 5);
  state.board.click(form6.Command9[1]);
  EXPECT_EQ(form1.Label14[1].top(), 121 + 60 + 5);
}

TEST_F(GeometryTest, ARangePastTheArrayStopsThereAndKeepsWhatItMoved) {
  current(112, 0);
  state.board.click(form6.Command9[0]);
  EXPECT_EQ(form1.Label9[28].left(), form1.Label9[27].left() + form1.Label9[28].width());
  current(43, 0);
  state.board.click(*form6.Command7);
  EXPECT_TRUE(form1.lvButtons_H23[1].picture().isNull());
  EXPECT_FALSE(form1.lvButtons_H24[0].picture().isNull());
}

TEST_F(GeometryTest, SnapsTowardsZero) {
  current(41, 0);
  form1.lvButtons_H22[0].place(-199.4f, 250.5f, 1, 1);
  type(form6.Text10[0], "100");
  type(form6.Text10[1], "2.5");
  state.board.click(*form6.Command13);
  EXPECT_EQ(form1.lvButtons_H22[0].left(), -100);
  // 250.5 counts as 250, the grid as 2 in the division and as 2.5 in the product.
  EXPECT_EQ(form1.lvButtons_H22[0].top(), 312.5f);
}

TEST_F(GeometryTest, GridFieldsAreFlooredOnlyWhereTheToolActs) {
  type(form6.Text10[0], "");
  type(form6.Text10[1], "-3");
  current(22, 0);
  state.board.click(*form6.Command13);
  EXPECT_EQ(form6.Text10[0].text(), u"");
  current(41, 0);
  form1.lvButtons_H22[0].setLeft(10.7f);
  state.board.click(*form6.Command13);
  EXPECT_EQ(form6.Text10[0].text(), u"1");
  EXPECT_EQ(form6.Text10[1].text(), u"1");
  EXPECT_EQ(form1.lvButtons_H22[0].left(), 11);
}

TEST_F(GeometryTest, ClearingEmptiesTheNamesOfTheMenuOnly) {
  for (Family* family : std::initializer_list<Family*>{&form1.lvButtons_H1, &form1.lvButtons_H8})
    for (Element* button : family->members()) state.names.of(*button)->setValue(QStringLiteral("\\a.bmp"));
  current(1, 0);
  state.board.click(*form6.Command7);
  EXPECT_TRUE(form1.lvButtons_H1[9].picture().isNull());
  EXPECT_TRUE(state.names.of(form1.lvButtons_H1[9])->isEmpty());
  EXPECT_FALSE(form1.lvButtons_H1[10].picture().isNull());
  EXPECT_FALSE(state.names.of(form1.lvButtons_H1[10])->isEmpty());
  current(18, 0);
  state.board.click(*form6.Command7);
  EXPECT_TRUE(form1.lvButtons_H8[1].picture().isNull());
  EXPECT_FALSE(state.names.of(form1.lvButtons_H8[1])->isEmpty());
}

TEST_F(GeometryTest, HugeNumbersLeaveThingsInPlace) {
  current(1, 0);
  type(form6.Text5[0], "3E38");
  state.board.click(form6.Command6[0]);
  state.board.click(form6.Command6[0]);
  EXPECT_TRUE(std::isfinite(form1.lvButtons_H1[0].left()));
}

}  // namespace veneerer
