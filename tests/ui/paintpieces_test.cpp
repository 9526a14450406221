#include "ui/paintpieces.h"

#include <QBackingStore>

#include "support/pictures.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

void slowDown(PaintPieces& pieces) {
  for (int i = 0; i < 20; ++i) pieces.took(QSize(pieces.side(), pieces.side()), 500);
}

TEST(PaintPieces, CoverTheRegionOnceInPiecesOfTheSize) {
  PaintPieces pieces;
  slowDown(pieces);
  const QRegion region = QRegion(10, 20, 300, 90) + QRegion(500, 0, 7, 400);
  QRegion left = region;
  QRegion covered;
  while (!left.isEmpty()) {
    const QRect piece = pieces.take(left);
    EXPECT_LE(std::max(piece.width(), piece.height()), PaintPieces::kShortestSide);
    EXPECT_FALSE(covered.intersects(piece));
    covered += piece;
  }
  EXPECT_EQ(covered, region);
}

TEST(PaintPieces, AreAsSmallAsTheSlowestNeeds) {
  PaintPieces pieces;
  slowDown(pieces);
  EXPECT_EQ(pieces.side(), PaintPieces::kShortestSide);
  pieces.took(QSize(10, 10), 0.5);
  EXPECT_EQ(pieces.side(), PaintPieces::kShortestSide) << "a small piece says nothing of a whole one";
  for (int i = 0; i < 20; ++i) pieces.took(QSize(pieces.side(), pieces.side()), 0.5);
  EXPECT_EQ(pieces.side(), PaintPieces::kLongestSide);
  pieces.took(QSize(10, 10), 30);
  EXPECT_LT(pieces.side(), PaintPieces::kLongestSide) << "unless it is slow";
}

class PiecewiseCanvas : public test::UiFixture {
protected:
  /// What of the canvas stands on the screen.
  QImage shown() {
    const auto* screen = dynamic_cast<const QImage*>(canvas().backingStore()->paintDevice());
    const QRect seen = canvas().visibleRegion().boundingRect();
    return screen ? screen->copy(seen.translated(canvas().mapTo(canvas().window(), QPoint()))) : QImage();
  }
  QImage whole() { return canvas().grab(canvas().visibleRegion().boundingRect()).toImage(); }
};

TEST_F(PiecewiseCanvas, OfASlowSkinIsCompleteInTheEnd) {
  for (Family* family : form1().families())
    for (Element* element : family->members()) {
      if (element->kind() != Kind::Button) continue;
      element->place(0, 0, 15000, 15000);
      static_cast<Button*>(element)->setButtonShape(3);
    }
  ASSERT_FALSE(shown().isNull());
  ASSERT_EQ(shown().size(), whole().size());
  EXPECT_TRUE(QTest::qWaitFor([&] { return test::largestDifference(shown(), whole()) <= 8; }));
}

}  // namespace
}  // namespace veneerer
