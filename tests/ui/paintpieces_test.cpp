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

TEST(PaintPieces, AreSmallUntilManyWereQuick) {
  PaintPieces pieces;
  for (int i = 0; i < 50; ++i) pieces.took(QSize(pieces.side(), pieces.side()), i % 5 == 0 ? 15 : 1);
  EXPECT_EQ(pieces.side(), PaintPieces::kShortestSide) << "one of a few may be slow again";
  for (int i = 0; i < 50; ++i) pieces.took(QSize(pieces.side(), pieces.side()), 1);
  EXPECT_EQ(pieces.side(), PaintPieces::kLongestSide);
  pieces.begin();
  EXPECT_EQ(pieces.side(), PaintPieces::kShortestSide);
}

/// Black and white points, which coarse and smooth scaling show quite differently.
QImage grain(int side) {
  QImage image(side, side, QImage::Format_RGB32);
  quint32 random = 1;
  for (int y = 0; y < side; ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < side; ++x) {
      random = random * 1664525 + 1013904223;
      row[x] = random >> 31 ? qRgb(255, 255, 255) : qRgb(0, 0, 0);
    }
  }
  return image;
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
  EXPECT_TRUE(QTest::qWaitFor([&] { return test::largestDifference(shown(), whole()) <= 8; }, 60'000));
}

TEST_F(PiecewiseCanvas, IsScaledSmoothlyByAndBy) {
  constexpr int kPictures = 8;
  form6().Combo6->select(9);
  for (int i = 0; i < kPictures; ++i) {
    ImageBox& cover = form1().Image2[i];
    cover.place(float(i % 4) * 1800, float(i / 4) * 1800, 1700, 1700);
    cover.setVisible(true);
    cover.setPicture(Picture::drawn(grain(2000)));
  }
  QTest::qWait(1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return test::largestDifference(shown(), whole()) <= 8; }, 60'000));
}

}  // namespace
}  // namespace veneerer
