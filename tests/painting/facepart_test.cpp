// Faces that are too large to be kept: what is seen of one looks like the same piece of the whole.
#include <gtest/gtest.h>

#include <algorithm>

#include "elements/button.h"
#include "painting/buttonface.h"
#include "painting/buttonstyle.h"
#include "painting/customoutline.h"
#include "painting/facecanvas.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

constexpr QSize kFace(240, 130);
// Of 255. Where a gradient is steep, the same place falls on another step of its colours in a part.
constexpr int kInvisible = 8;

// A blot that shape 7 and 8 are cut from; it has the face's size, so that it needn't be scaled.
QImage blot() {
  QImage image(kFace, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setBrush(Qt::darkGreen);
  painter.drawEllipse(20, 10, 190, 100);
  return image;
}

/// How far the face that is drawn in pieces is from the whole one, of 255.
int seam(FaceLook look, const QImage& picture) {
  const QImage whole = drawFace(look, picture, kFace);
  const int reach = FaceCanvas::edgeReach(look.scale);
  int largest = 0;
  for (int y = 0; y < kFace.height(); y += 40)
    for (int x = 0; x < kFace.width(); x += 60) {
      const QRect seen = QRect(x, y, 60, 40) & QRect(QPoint(), kFace);
      look.part = seen.adjusted(-reach, -reach, reach, reach) & QRect(QPoint(), kFace);
      const QImage piece = drawFace(look, picture, kFace);
      const QImage shown = piece.copy(seen.translated(-look.part.topLeft()));
      largest = std::max(largest, test::largestDifference(shown, whole.copy(seen)));
    }
  return largest;
}

TEST(FacePart, ShowsNoSeamsInAnyShapeAndStyle) {
  const QImage cut = cutOut(blot());
  for (int shape = 0; shape <= Button::kLastShape; ++shape)
    for (int style = 0; style < kButtonStyleCount; ++style)
      for (const double scale : {0.5, 1.0, 2.5}) {
        FaceLook look{.size = kFace, .scale = scale, .shape = shape, .style = style, .gradient = 3};
        look.back = qRgb(200, 40, 40);
        look.second = qRgb(20, 40, 220);
        look.pictureKey = shape >= Button::kFirstCustomShape ? 1 : 0;
        look.hover = style % 2 == 0;
        look.pressed = style % 3 == 0;
        // Made smaller, a picture is smooth on the whole face alone.
        if (shape == Button::kLastShape && scale < 1) continue;
        EXPECT_LE(seam(look, look.pictureKey ? cut : QImage()), kInvisible)
            << "shape " << shape << ", style " << style << ", scale " << scale;
      }
}

TEST(FacePart, CoveringPicturesShowNoSeams) {
  for (const int pictureSize : {kFirstCoveringSize, kFirstCoveringSize + 1}) {
    FaceLook look{.size = kFace, .shape = 4, .style = 3, .pictureSize = pictureSize, .pictureKey = 1};
    look.enabled = false;
    EXPECT_LE(seam(look, blot()), kInvisible) << pictureSize;
  }
}

TEST(FacePart, IsNoLargerThanWhatIsSeenOfIt) {
  FaceLook look{.size = QSize(4000, 2000)};
  const int reach = FaceCanvas::edgeReach(1);
  EXPECT_EQ(partOfFace(look, QSize(), QRectF(100.5, 200, 30, 20)),
            QRect(100, 200, 31, 20).adjusted(-reach, -reach, reach, reach));
  EXPECT_EQ(partOfFace(look, QSize(), QRectF(-50, -50, 60, 9000)), QRect(0, 0, 10 + reach, 2000));
  look.size = QSize(1024, 1024);
  EXPECT_TRUE(partOfFace(look, QSize(), QRectF(0, 0, 900, 900)).isNull())
      << "it is kept, so most of it is worth all";
  EXPECT_EQ(partOfFace(look, QSize(), QRectF(0, 0, 9, 9)).size(), QSize(9 + reach, 9 + reach));
  EXPECT_FALSE(partOfFace(look, QSize(2000, 9), QRectF(0, 0, 9, 9)).isNull());
  EXPECT_TRUE(partOfFace(look, QSize(3000, 9), QRectF(0, 0, 9, 9)).isNull()) << "it would be coarse";
  look.size = QSize(512, 512);
  EXPECT_TRUE(partOfFace(look, QSize(9, 9), QRectF(0, 0, 9, 9)).isNull());
  EXPECT_FALSE(partOfFace(look, QSize(), QRectF(0, 0, 9, 9)).isNull());
  look.size = QSize(128, 256);
  EXPECT_TRUE(partOfFace(look, QSize(), QRectF(0, 0, 9, 9)).isNull());
}

}  // namespace
}  // namespace veneerer
