// Lines, snapping and distances around an element that is dragged.
#include "canvas/alignmentlines.h"

#include <gtest/gtest.h>

#include <limits>

#include "forms/state.h"

namespace veneerer {
namespace {

// A room of 1000 by 800 with one neighbour at its left and one below.
const Surroundings kRoom{
    QRectF(0, 0, 1000, 800), {QRectF(100, 100, 200, 50), QRectF(400, 500, 100, 100)}, {}};

TEST(AlignmentLines, AppearWhereEdgesOrCentresAgree) {
  // Its top agrees with the first neighbour's, its left and right with the second one's.
  const auto lines = alignmentLines(QRectF(400, 101, 100, 80), kRoom, 2);
  const std::vector<AlignmentLine> expected{
      {Axis::X, 400, 101, 600}, {Axis::X, 450, 101, 600}, {Axis::X, 500, 101, 600}, {Axis::Y, 101, 100, 500}};
  EXPECT_EQ(lines, expected);
  EXPECT_TRUE(alignmentLines(QRectF(401, 103, 90, 70), kRoom, 0.5).empty());
  // An edge says nothing to a centre.
  EXPECT_TRUE(alignmentLines(QRectF(450, 203, 37, 71), kRoom, 0.5).empty());
}

TEST(AlignmentLines, SnapToTheNearestWithinReach) {
  EXPECT_EQ(snapOffset(QRectF(396, 203, 37, 71), kRoom, 5), QPointF(4, 0));
  EXPECT_EQ(snapOffset(QRectF(305, 147, 37, 71), kRoom, 5), QPointF(-5, 3));
  EXPECT_EQ(snapOffset(QRectF(994 - 37, 800 + 2, 37, 71), kRoom, 7), QPointF(6, -2))
      << "the container's edge";
  Surroundings guided = kRoom;
  guided.guides[static_cast<int>(Axis::Y)] = {333};
  EXPECT_EQ(snapOffset(QRectF(611, 330, 37, 71), guided, 5), QPointF(0, 3));
}

TEST(AlignmentLines, OnlyTheFarEdgeSnapsWhenAnElementIsSized) {
  // Its left edge and its middle are nearer to a line than its right edge is.
  const QRectF sized(301, 203, 95, 71);
  EXPECT_EQ(snapFarEdge(sized, kRoom, Axis::X, 5), 4);
  EXPECT_EQ(snapFarEdge(sized, kRoom, Axis::X, 3), std::nullopt);
  EXPECT_EQ(snapFarEdge(QRectF(301, 203, 95, 297), kRoom, Axis::Y, 5), 0) << "it agrees already";
}

TEST(AlignmentLines, MeasureTheWaysToTheNextOnes) {
  const auto ways = distances(QRectF(420, 110, 60, 20), kRoom);
  const std::vector<Distance> expected{
      {Axis::X, 300, 420, 120}, {Axis::X, 480, 1000, 120}, {Axis::Y, 0, 110, 450}, {Axis::Y, 130, 500, 450}};
  EXPECT_EQ(ways, expected);
  EXPECT_EQ(distances(QRectF(-50, 0, 1200, 800), kRoom).size(), 0u) << "there is no way outside";
}

TEST(AlignmentLines, KnowWhatStandsBesideAnElement) {
  State state;
  PictureBox& box = state.form1.Picture2[0];
  box.setContainer(state.form1);
  box.place(30, 40, 3000, 2000);
  for (int i = 0; i < 4; ++i) {
    state.form1.Label1[i].setContainer(box);
    state.form1.Label1[i].place(static_cast<float>(100 * i), 15, 90, 30);
  }
  state.form1.Label1[2].setVisible(false);
  state.form1.Label1[3].setWidth(std::numeric_limits<float>::quiet_NaN());
  const Surroundings around = surroundingsOf(state.form1.Label1[0]);
  EXPECT_EQ(around.container, QRectF(0, 0, 3000, 2000));
  ASSERT_EQ(around.neighbours.size(), 1u);
  EXPECT_EQ(around.neighbours[0], QRectF(100, 15, 90, 30));
}

}  // namespace
}  // namespace veneerer
