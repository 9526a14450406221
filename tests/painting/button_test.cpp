#include <gtest/gtest.h>

#include <QPainter>
#include <QSet>

#include "elements/colour.h"
#include "elements/family.h"
#include "elements/window.h"
#include "painting/buttonface.h"
#include "painting/buttonpainter.h"
#include "painting/customoutline.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

constexpr QSize kSize(60, 30);

Picture filled(const QColor& colour) {
  QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
  image.fill(colour);
  return Picture::drawn(image);
}

// A red disc in the middle of white, without an alpha channel.
QImage disc(QSize size = kSize) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::red);
  painter.drawEllipse(QRectF(QPointF(), size));
  painter.fillRect(size.width() / 2 - 2, size.height() / 2 - 2, 4, 4, Qt::white);
  return image;
}

class ButtonPainting : public testing::Test {
protected:
  ButtonPainting() {
    button.setBackColor(0x00FF00);
    button.setForeColor(0x0000FF);
    button.setGradientColor(0xFF0000);
  }

  QImage paint(const ButtonState& state = {}) {
    QImage image(kSize, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter on(&image);
    painter.paint(on, button, image.rect(), image.rect(), PixelScale(), state);
    return image;
  }

  Switchboard board;
  Window window{board, "Test"};
  Single<Button> single{window, "Button"};
  Button& button = *single;
  TextLayouts texts;
  ScaledImages images;
  CutOuts cutOuts;
  Dress dress;
  ButtonPainter painter{texts, images, cutOuts, dress};
};

int count(const QImage& image, QColor colour) {
  return test::countPixels(image.size(), [&](int x, int y) { return image.pixelColor(x, y) == colour; });
}

TEST_F(ButtonPainting, EveryShapeStyleAndGradientLooksDifferent) {
  QSet<QByteArray> seen;
  int looks = 0;
  for (int shape = 0; shape < Button::kFirstCustomShape; ++shape)
    for (int style = 0; style < 8; ++style)
      for (int mode = 0; mode < kGradientModeCount; ++mode, ++looks) {
        button.setButtonShape(shape);
        button.setButtonStyle(style);
        button.setGradientMode(mode);
        const QImage image = paint();
        seen.insert(QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()));
      }
  EXPECT_EQ(seen.size(), looks);
}

TEST_F(ButtonPainting, NumbersOutOfRangeCountAsZero) {
  const QImage plain = paint();
  button.setButtonStyle(99);
  button.setGradientMode(-4);
  button.set(Property::CaptionStyle, 77);
  button.set(Property::PictureAlign, -1);
  EXPECT_EQ(paint(), plain);
}

TEST_F(ButtonPainting, TheCaptionIsDrawnInItsColourAsItStands) {
  button.setButtonStyle(2);
  button.set(Property::FontSize, 10.0f);
  button.set(Property::FontBold, true);
  button.setCaption("II");
  const int withoutSign = count(paint(), Qt::red);
  EXPECT_GT(withoutSign, 0);
  button.setCaption("I&I");
  EXPECT_GT(count(paint(), Qt::red), withoutSign) << "the sign & must show";
  button.setCaption("II||II");
  const QImage twoLines = paint();
  EXPECT_GT(count(twoLines.copy(0, 0, 60, 15), Qt::red), 0);
  EXPECT_GT(count(twoLines.copy(0, 15, 60, 15), Qt::red), 0);
  EXPECT_GT(count(twoLines, Qt::green), 1000) << "the face keeps the back colour";
}

TEST_F(ButtonPainting, ACustomShapeFollowsItsPicture) {
  button.setPicture(Picture::drawn(disc()));
  button.setButtonShape(7);
  button.setButtonStyle(2);
  const QImage image = paint();
  EXPECT_EQ(image.pixelColor(1, 1), Qt::magenta) << "outside of the outline";
  EXPECT_EQ(image.pixelColor(20, 15), Qt::red);
  EXPECT_EQ(image.pixelColor(30, 15), Qt::white)
      << "inside, the background's colour is a part of the picture";

  button.setPicture(Picture::drawn(disc(QSize(20, 20))));
  EXPECT_EQ(paint().pixelColor(10, 15), Qt::red) << "stretched";
  button.setButtonShape(8);
  EXPECT_EQ(paint().pixelColor(10, 15), Qt::magenta) << "in its own size";
  EXPECT_EQ(paint().pixelColor(24, 15), Qt::red);
}

TEST_F(ButtonPainting, ACustomShapeMayMoveAsAWholeWhenItIsPressed) {
  button.setPicture(Picture::drawn(disc(QSize(20, 20))));
  button.setButtonShape(8);
  button.setCaption("OK");
  const QImage still = paint();
  ASSERT_TRUE(button.set(Property::CustomClick, true));
  QImage moved(kSize, QImage::Format_RGB32);
  moved.fill(Qt::magenta);
  QPainter(&moved).drawImage(1, 1, still);
  EXPECT_EQ(paint({.pressed = true}), moved) << "the caption goes no further than the face";
}

TEST_F(ButtonPainting, PicturesFollowTheirSize) {
  button.setPicture(filled(Qt::blue));
  button.setButtonStyle(2);  // no edges
  int covered[5];
  for (int size = 0; size < 5; ++size) {
    button.setPictureSize(static_cast<PictureSize>(size));
    covered[size] = count(paint(), Qt::blue);
  }
  EXPECT_EQ(covered[0], 16 * 16);
  EXPECT_EQ(covered[1], 24 * 24);
  EXPECT_EQ(covered[2], 26 * 26) << "no larger than the face has room for";
  EXPECT_EQ(covered[3], 60 * 30);
  EXPECT_GT(covered[4], 26 * 26);
  EXPECT_LT(covered[4], covered[3]);
}

TEST_F(ButtonPainting, PictureAndCaptionStandWhereTheirAlignmentSays) {
  button.setPicture(filled(Qt::blue));
  button.setButtonStyle(2);
  button.set(Property::FontSize, 7.0f);
  button.setCaption("I");
  const std::pair<PictureAlign, QRect> halves[] = {{PictureAlign::LeftEdge, {0, 0, 30, 30}},
                                                   {PictureAlign::RightEdge, {30, 0, 30, 30}},
                                                   {PictureAlign::TopCenter, {0, 0, 60, 15}},
                                                   {PictureAlign::BottomCenter, {0, 15, 60, 15}}};
  for (const auto& [align, half] : halves) {
    button.set(Property::PictureAlign, static_cast<int>(align));
    EXPECT_GT(count(paint().copy(half), Qt::blue), 16 * 16 / 2) << static_cast<int>(align);
  }
  button.setPicture(Picture());
  button.set(Property::PictureAlign, static_cast<int>(PictureAlign::LeftEdge));
  button.set(Property::FontSize, 14.0f);
  for (const auto& [align, left] : {std::pair(0, 0), {1, 40}, {2, 20}}) {
    button.set(Property::CaptionAlign, align);
    EXPECT_GT(count(paint().copy(left, 0, 20, 30), Qt::red), 0) << align;
  }
}

TEST_F(ButtonPainting, AStyleShowsUnderASeeThroughPictureAndAroundAnyOther) {
  for (int style = 0; style < 8; ++style) {
    button.setButtonStyle(style);
    button.setPicture(Picture());
    const QImage plain = paint();
    const QImage pressed = paint({.pressed = true});
    button.setPictureSize(PictureSize::Stretched);
    button.setPicture(filled(Qt::transparent));
    EXPECT_EQ(paint(), plain) << style;
    EXPECT_EQ(paint({.pressed = true}), pressed) << style;
    button.setPicture(filled(Qt::blue));
    EXPECT_EQ(paint().pixelColor(30, 15), QColor(Qt::blue)) << style;
    EXPECT_NE(paint({.pressed = true}).pixelColor(30, 15), QColor(Qt::blue)) << style;
    if (style != 2) {
      EXPECT_LT(count(paint(), Qt::blue), 60 * 28) << "no edge of style " << style;
    }
  }
}

TEST_F(ButtonPainting, APictureOfTheFacesProportionsLooksAlikeInBothCoveringSizes) {
  button.setPicture(Picture::drawn(disc(kSize * 2)));
  button.setPictureSize(PictureSize::Stretched);
  const QImage stretched = paint();
  button.setPictureSize(PictureSize::Fitted);
  EXPECT_EQ(paint(), stretched);
}

TEST_F(ButtonPainting, EveryFaceAnswersThePointerWithItsHoverColoursLocked) {
  const QImage silhouette = disc();
  for (int style = 0; style < 8; ++style)
    for (const std::int32_t back : {0xFFFFFF, 0x000000, 0x808080})
      for (const Picture& picture : {Picture(), filled(Qt::white), Picture::drawn(silhouette)}) {
        button.setButtonShape(0);
        button.setPicture(picture);
        button.setPictureSize(PictureSize::Stretched);
        if (picture.image().size() == kSize) button.setButtonShape(7);
        button.setButtonStyle(style);
        button.setBackColor(back);
        const QImage rest = paint();
        const QImage hover = paint({.hover = true});
        const int changed =
            test::countPixels(kSize, [&](int x, int y) { return hover.pixel(x, y) != rest.pixel(x, y); });
        EXPECT_GT(changed, 40) << style << ' ' << back << ' ' << picture.image().width();
      }
}

TEST_F(ButtonPainting, CaptionsEndAtTheOutline) {
  button.set(Property::FontSize, 11.0f);
  for (int shape = 1; shape <= 7; ++shape) {
    if (shape == 7) button.setPicture(Picture::drawn(disc()));
    button.setButtonShape(shape);
    button.setCaption(QString());
    const QImage bare = paint();
    button.setCaption("MMMMMMMM||MMMMMMMM");
    const QImage lettered = paint();
    EXPECT_NE(lettered, bare) << shape;
    const auto isSpilt = [&](int x, int y) {
      return bare.pixelColor(x, y) == Qt::magenta && lettered.pixelColor(x, y) != Qt::magenta;
    };
    EXPECT_EQ(test::countPixels(kSize, isSpilt), 0) << shape;
  }
}

TEST_F(ButtonPainting, ACaptionOnGlassIsntGlass) {
  QImage glass = filled(QColor(255, 255, 255, 100)).image();
  glass.setPixelColor(0, 0, Qt::transparent);
  button.setPicture(Picture::drawn(glass));
  button.setButtonShape(7);
  button.set(Property::FontSize, 16.0f);
  button.set(Property::FontBold, true);
  button.setCaption("MM");
  EXPECT_GT(count(paint(), Qt::red), 30);
}

TEST_F(ButtonPainting, AFaceThatWasTooCostlyComesOutWellLater) {
  button.setPicture(Picture::drawn(disc(QSize(301, 203))));
  button.setPictureSize(PictureSize::Stretched);
  const QImage smooth = paint();
  button.setPicture(Picture::drawn(disc(QSize(301, 203))));
  images.setAllowance(0);
  EXPECT_NE(paint(), smooth);
  EXPECT_TRUE(images.isExceeded());
  images.setAllowance(100000);
  EXPECT_EQ(paint(), smooth);
  EXPECT_EQ(paint(), smooth) << "it is ready made";
  EXPECT_FALSE(images.isExceeded());
}

TEST_F(ButtonPainting, StatesShowAndNoFaceOutlivesItsProperties) {
  button.setCaption("OK");
  const QImage plain = paint();
  EXPECT_NE(paint({.pressed = true}), plain);
  EXPECT_NE(paint({.hover = true}), plain);
  EXPECT_EQ(paint(), plain);

  button.set(Property::Mode, static_cast<int>(ButtonMode::CheckBox));
  button.set(Property::Value, 1);
  EXPECT_EQ(paint(), paint({.pressed = true})) << "a latched button looks pressed";
  button.set(Property::Value, 0);
  EXPECT_EQ(paint(), plain);

  button.set(Property::Enabled, false);
  EXPECT_EQ(paint({.hover = true}), paint()) << "a disabled button doesn't answer";
  EXPECT_NE(paint(), plain);
  button.set(Property::Enabled, true);
  button.setBackColor(0x00FFFF);
  EXPECT_NE(paint(), plain);
}

TEST_F(ButtonPainting, HoverColoursActUnlessTheyAreLocked) {
  button.setButtonStyle(2);
  button.set(Property::HoverBackColor, Colour(0xFF0000));
  const QImage locked = paint({.hover = true});
  button.set(Property::HoverColorLocks, 1);
  EXPECT_NE(paint({.hover = true}), locked);
  EXPECT_EQ(paint().pixelColor(5, 15), Qt::green);
}

TEST(CustomOutline, LosesItsPaleFringeAndNoMore) {
  QImage picture(16, 16, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.fillRect(3, 3, 10, 10, QColor(200, 200, 200));  // two pixels wide; one of them is fringe
  painter.fillRect(5, 5, 6, 6, Qt::red);
  painter.end();
  const QImage cut = cutOut(picture);
  EXPECT_EQ(qAlpha(cut.pixel(2, 8)), 0);
  EXPECT_EQ(qAlpha(cut.pixel(3, 8)), 0);
  EXPECT_EQ(cut.pixelColor(4, 8), QColor(200, 200, 200));
  EXPECT_EQ(cut.pixelColor(8, 8), Qt::red);
}

TEST(CustomOutline, CopesWithAnyPicture) {
  QImage plain(3000, 5, QImage::Format_RGB32);
  plain.fill(Qt::red);
  const QImage onlyBackground = cutOut(plain);
  EXPECT_LE(onlyBackground.width(), 1024);
  EXPECT_EQ(onlyBackground.pixelColor(0, 0), Qt::red) << "a button that is nowhere could never be clicked";
  EXPECT_TRUE(cutOut(QImage()).isNull());
  EXPECT_EQ(cutOut(QImage(1, 1, QImage::Format_Mono)).size(), QSize(1, 1));
}

}  // namespace
}  // namespace veneerer
