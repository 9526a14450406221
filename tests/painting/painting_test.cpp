#include <gtest/gtest.h>

#include <QPainter>
#include <cmath>
#include <limits>

#include "elements/colour.h"
#include "support/canvasfixture.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

constexpr std::int32_t kRed = 0x0000FF;
constexpr std::int32_t kGreen = 0x00FF00;
constexpr std::int32_t kBlue = 0xFF0000;

Picture plainPicture(QSize size, Qt::GlobalColor colour) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(colour);
  return Picture::drawn(image);
}

class Painting : public test::CanvasFixture {
protected:
  QImage paint(double device = 1) {
    QImage image(QSize(100, 100) * device, QImage::Format_RGB32);
    image.setDevicePixelRatio(device);
    image.fill(Qt::magenta);
    QPainter on(&image);
    painter.paint(on, form, QRect(0, 0, 100, 100), 1.0 / 15, 1.0 / 15);
    return image;
  }

  /// Red on blue.
  Label& putLabel(Element& container, const QRectF& place, const char* caption, float fontSize) {
    Label& label = form.Label16[0];
    put(label, container, place);
    label.setForeColor(kRed);
    label.setBackColor(kBlue);
    label.setFontSize(fontSize);
    label.setCaption(caption);
    return label;
  }

  Element* at(float x, float y) { return hits.elementAt(form, x * 15, y * 15); }

  HitTest hits{painter.cutOuts()};
};

TEST(ScaledImages, ScaleNoMoreThanTheirAllowance) {
  ScaledImages images;
  const QImage image = plainPicture(QSize(100, 100), Qt::red).image();
  images.setAllowance(11'000);
  EXPECT_EQ(images.scaled(image, QSize(30, 30)).size(), QSize(30, 30));
  EXPECT_FALSE(images.isExceeded());
  EXPECT_EQ(images.scaled(image, QSize(20, 20)).size(), QSize(100, 100));
  EXPECT_TRUE(images.isExceeded());
  EXPECT_EQ(images.scaled(image, QSize(30, 30)).size(), QSize(30, 30)) << "it is ready made";
  images.setAllowance(11'000);
  EXPECT_FALSE(images.isExceeded());
  EXPECT_EQ(images.scaled(image, QSize(20, 20)).size(), QSize(20, 20));
}

// The right half is see-through.
Picture halfPicture(QSize size, const QColor& left) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter(&image).fillRect(0, 0, size.width() / 2, size.height(), left);
  return Picture::drawn(image);
}

bool holdsColour(const QImage& image, const QRect& in, QColor colour) {
  const QImage part = image.copy(in);
  return test::countPixels(part.size(), [&](int x, int y) { return part.pixelColor(x, y) == colour; }) > 0;
}

TEST_F(Painting, LabelsShowTheirColoursAndWhatLiesUnderThem) {
  put(form.Picture2[3], {10, 10, 80, 80});
  form.Picture2[3].setBackColor(kGreen);
  Label& label = putLabel(form.Picture2[3], {10, 10, 60, 30}, "MMMM", 18);

  const QImage opaque = paint();
  EXPECT_EQ(opaque.pixelColor(5, 5), Qt::black);
  EXPECT_EQ(opaque.pixelColor(15, 15), Qt::green);
  EXPECT_EQ(opaque.pixelColor(78, 48), Qt::blue);
  EXPECT_TRUE(holdsColour(opaque, QRect(20, 20, 60, 30), Qt::red));

  label.setOpaque(false);
  const QImage transparent = paint();
  EXPECT_EQ(transparent.pixelColor(78, 48), Qt::green);
  EXPECT_TRUE(holdsColour(transparent, QRect(20, 20, 60, 30), Qt::red));
}

TEST_F(Painting, AlignmentMovesTheTextAndWrapsIt) {
  Label& label = putLabel(form, {0, 0, 90, 60}, "MI", 12);
  const QRect left(0, 0, 30, 20);
  const QRect right(60, 0, 30, 20);
  const QRect second(0, 20, 90, 20);
  EXPECT_TRUE(holdsColour(paint(), left, Qt::red));
  label.setAlignment(Alignment::Right);
  EXPECT_FALSE(holdsColour(paint(), left, Qt::red));
  EXPECT_TRUE(holdsColour(paint(), right, Qt::red));
  EXPECT_FALSE(holdsColour(paint(), second, Qt::red));
  label.setCaption("MIMIMI MIMIMI");
  EXPECT_TRUE(holdsColour(paint(), second, Qt::red));
}

TEST_F(Painting, ChildrenAreClippedToTheirContainersAndHiddenWithThem) {
  put(form.Picture2[3], {10, 10, 30, 30});
  put(form.Picture2[4], form.Picture2[3], {20, 20, 70, 70});
  form.Picture2[3].setBackColor(kGreen);
  form.Picture2[4].setBackColor(kRed);
  EXPECT_EQ(paint().pixelColor(35, 35), Qt::red);
  EXPECT_EQ(paint().pixelColor(45, 45), Qt::black);
  EXPECT_EQ(at(35, 35), &form.Picture2[4]);
  EXPECT_EQ(at(10, 10), &form.Picture2[3]) << "the first pixel is its own,";
  EXPECT_EQ(at(40, 20), nullptr) << "the one behind the last isn't";
  EXPECT_EQ(windowRect(form.Picture2[4]), QRectF(30 * 15, 30 * 15, 70 * 15, 70 * 15));
  form.Picture2[3].setVisible(false);
  EXPECT_EQ(paint().pixelColor(35, 35), Qt::black);
  EXPECT_FALSE(isShown(form.Picture2[4]));
  EXPECT_EQ(at(35, 35), nullptr);
}

TEST_F(Painting, TheMainScreenShowsNothingButItsChildren) {
  put(form.Picture2[3], {0, 0, 50, 50});
  form.Picture2[3].setBackColor(kGreen);
  put(form.Picture1[0], {0, 0, 100, 100});
  put(form.Picture2[4], form.Picture1[0], {60, 60, 20, 20});
  form.Picture2[4].setBackColor(kRed);
  EXPECT_EQ(paint().pixelColor(10, 10), Qt::green);
  EXPECT_EQ(paint().pixelColor(70, 70), Qt::red);
  EXPECT_EQ(at(10, 10), &form.Picture2[3]);
  EXPECT_EQ(at(70, 70), &form.Picture2[4]);
  EXPECT_EQ(at(90, 90), nullptr);
}

TEST_F(Painting, FramesAndAlphaImagesLetTheMouseThroughWhereTheyAreSeeThrough) {
  put(form.Image2[0], {10, 10, 80, 80});
  put(form.ucAniGIF1[0], {0, 0, 100, 100});
  EXPECT_EQ(at(50, 50), &form.Image2[0]) << "a frame without a picture";
  form.ucAniGIF1[0].setPicture(halfPicture({20, 20}, Qt::red));
  EXPECT_EQ(at(20, 50), &form.ucAniGIF1[0]);
  EXPECT_EQ(at(60, 50), &form.Image2[0]);
  EXPECT_EQ(at(95, 50), nullptr);
  form.ucAniGIF1[0].setPicture(halfPicture({20, 20}, QColor(255, 0, 0, 3)));
  EXPECT_EQ(at(20, 50), &form.Image2[0]) << "too faint to be seen";

  put(form.aicAlphaImage1[0], {0, 0, 100, 100});
  form.aicAlphaImage1[0].setPicture(halfPicture({40, 20}, Qt::red));
  EXPECT_EQ(at(20, 50), &form.aicAlphaImage1[0]);
  EXPECT_EQ(at(60, 50), &form.Image2[0]);
  EXPECT_EQ(at(20, 20), &form.Image2[0]) << "above a picture that keeps its proportions";
}

// What takes the mouse is what is painted, but for the pixels along the outline.
TEST_F(Painting, AButtonTakesTheMouseWithinItsOutline) {
  put(form.Picture2[3], {0, 0, 100, 100});
  form.Picture2[3].setBackColor(kGreen);
  Button& button = form.lvButtons_H1[0];
  put(button, {10, 10, 80, 40});
  button.setBackColor(kRed);
  QImage cross(60, 30, QImage::Format_RGB32);
  cross.fill(Qt::white);
  QPainter(&cross).fillRect(4, 10, 52, 10, Qt::blue);
  QPainter(&cross).fillRect(20, 3, 12, 24, Qt::blue);
  for (int shape = 0; shape <= Button::kLastShape; ++shape)
    for (const int style : {0, 4}) {
      if (shape == Button::kFirstCustomShape) button.setPicture(Picture::drawn(cross));
      button.setButtonShape(shape);
      button.setButtonStyle(style);
      const QImage image = paint();
      const int wrong = test::countPixels(QSize(100, 60), [&](int x, int y) {
        const bool isBare = image.pixelColor(x, y) == Qt::green;
        return isBare != (at(float(x) + 0.5f, float(y) + 0.5f) == &form.Picture2[3]);
      });
      EXPECT_LT(wrong, 120) << "shape " << shape << ", style " << style;
    }
  EXPECT_EQ(at(20, 30), &form.Picture2[3]) << "shape 8 keeps its picture's size";
  EXPECT_EQ(at(26, 30), &button);
}

TEST_F(Painting, PicturesKeepTheirSizeUnlessTheyStretch) {
  put(form.Picture2[3], {10, 10, 60, 60});
  form.Picture2[3].setBackColor(kGreen);
  form.Picture2[3].setPicture(plainPicture(QSize(20, 20), Qt::red));
  EXPECT_EQ(paint().pixelColor(29, 29), Qt::red);
  EXPECT_EQ(paint().pixelColor(31, 31), Qt::green);
  EXPECT_EQ(paint(2).pixelColor(59, 59), Qt::red);
  EXPECT_EQ(paint(2).pixelColor(62, 62), Qt::green);

  form.Picture2[3].setVisible(false);
  put(form.Image2[0], {0, 0, 40, 40});
  form.Image2[0].setPicture(plainPicture(QSize(20, 20), Qt::yellow));
  EXPECT_EQ(paint().pixelColor(30, 30), Qt::black);
  form.Image2[0].setStretch(true);
  EXPECT_EQ(paint().pixelColor(30, 30), Qt::yellow);
  form.Image2[0].setPicture(plainPicture(QSize(20, 20), Qt::cyan));
  EXPECT_EQ(paint().pixelColor(30, 30), Qt::cyan) << "a scaled picture outlived its element's picture";
}

TEST_F(Painting, AbsurdNumbersAreDrawnAsNothing) {
  constexpr float kInfinite = std::numeric_limits<float>::infinity();
  constexpr float kNone = std::numeric_limits<float>::quiet_NaN();
  const float absurd[] = {kNone, kInfinite, -kInfinite, 3e38f, -3e38f, 1e30f, -1, 0, 1e9f};
  Element* const elements[] = {&form.Label16[0], &form.lvButtons_H1[0], &form.Picture2[3],
                               &form.Image2[0],  &form.ucAniGIF1[0],    &form.aicAlphaImage1[0]};
  for (Element* element : elements) {
    put(*element, {0, 0, 10, 10});
    if (element->has(Property::Picture)) element->set(Property::Picture, plainPicture({9, 9}, Qt::red));
    if (element->has(Property::Caption))
      element->set(Property::Caption, QStringLiteral("word ").repeated(50'000));
    if (element->has(Property::Stretch)) element->set(Property::Stretch, true);
  }
  for (const float place : absurd)
    for (const float size : absurd) {
      for (Element* element : elements) {
        element->place(place, place, size, size);
        if (element->has(Property::FontSize)) element->set(Property::FontSize, size);
      }
      const QImage image = paint();
      // Only the elements of an area that begins at or before the canvas can be seen at all.
      if (!(size > 0) || !(place <= 0)) {
        EXPECT_EQ(image.pixelColor(50, 50), Qt::black) << place << ' ' << size;
      }
    }
}

TEST_F(Painting, UnderlinesStandUnderTheirText) {
  Label& label = putLabel(form, {0, 0, 90, 60}, "iii iii iii iii iii iii iii iii iii", 12);
  // The pixels of each row that are as red as a rule is, which no row of this text alone comes close to.
  const auto ruled = [&](const QImage& image) {
    std::vector<QRect> rows;
    for (int y = 0; y < 60; ++y) {
      int first = 100, last = -1, count = 0;
      for (int x = 0; x < 100; ++x)
        if (image.pixelColor(x, y) == Qt::red) {
          first = std::min(first, x);
          last = x;
          ++count;
        }
      if (count > 20 && count == last - first + 1) rows.push_back(QRect(first, y, count, 1));
    }
    return rows;
  };
  EXPECT_TRUE(ruled(paint()).empty());
  for (const Property flag : {Property::FontUnderline, Property::FontStrikethrough}) {
    label.set(flag, true);
    label.setAlignment(Alignment::Left);
    const std::vector<QRect> left = ruled(paint());
    ASSERT_GE(left.size(), 2u) << "one for each line of a wrapped text";
    EXPECT_LT(left[0].left(), 3);
    label.setAlignment(Alignment::Right);
    EXPECT_GT(ruled(paint())[0].right(), 86);
    label.setAlignment(Alignment::Center);
    const QRect centred = ruled(paint())[0];
    EXPECT_NEAR(centred.center().x(), 45, 2);
    EXPECT_EQ(centred.width(), left[0].width());
    label.set(flag, false);
  }
}

TEST_F(Painting, EachFlagOfAFontShowsInItsOwnWay) {
  Label& label = putLabel(form, {0, 0, 90, 60}, "HIHI", 24);
  const auto ink = [](const QImage& image) {
    return test::countPixels(image.size(), [&](int x, int y) { return image.pixelColor(x, y) == Qt::red; });
  };
  const QImage plain = paint();
  const auto painted = [&](Property flag) {
    label.set(flag, true);
    const QImage image = paint();
    label.set(flag, false);
    EXPECT_TRUE(paint() == plain);
    return image;
  };
  EXPECT_GT(ink(painted(Property::FontBold)), ink(plain) * 5 / 4);
  const QImage slanted = painted(Property::FontItalic);
  EXPECT_LT(ink(slanted), ink(plain)) << "upright strokes have more full pixels";
  EXPECT_GT(ink(slanted), 0);
}

// Where texts break follows from the width in whole pixels.
TEST_F(Painting, TheWidthOfATextIsTheSameAtEachScale) {
  Label& label = form.Label1[0];
  const auto widthAt = [&](double device) {
    const PixelScale scale{1.0 / 15, 1.0 / 15, device};
    const QRectF rect = *pixelRect(label, QPointF(), scale);
    return std::ceil(rect.width() + lostWidth(label, rect, scale));
  };
  for (float twips = 200; twips < 6000; twips += 37.5f) {
    label.place(0, 0, twips, 300);
    const double width = widthAt(1);
    for (const double device : {0.1, 0.33, 0.5, 0.67, 0.93, 1.25, 1.5, 2.0, 8.0})
      ASSERT_EQ(widthAt(device), width) << twips << " twips at " << device;
  }
}

TEST(TextLayouts, HoldNoMoreThanCanBeSeen) {
  TextLayouts layouts;
  const auto glyphs = [&](const TextRequest& request) {
    qsizetype count = 0;
    for (const QGlyphRun& run : layouts.of(request).runs) count += run.glyphIndexes().size();
    return count;
  };
  TextRequest request{QString(1'000'000, u'W'), "Arial", 20, 0, 100, 30, 0};
  EXPECT_GE(glyphs(request), 5);
  EXPECT_LE(glyphs(request), 40) << "one line without a break";
  request.text = QStringLiteral("W ").repeated(500'000);
  EXPECT_GE(glyphs(request), 5);
  EXPECT_LE(glyphs(request), 40) << "many lines";
  request.text = "WWW";
  EXPECT_EQ(glyphs(request), 3);
}

TEST(Colours, SystemColoursTurnIntoPlainOnes) {
  EXPECT_EQ(Colour(0x112233).toQColor(), QColor(0x33, 0x22, 0x11));
  EXPECT_EQ(Colour::of(QColor(0x33, 0x22, 0x11)), 0x112233);
  EXPECT_EQ(Colour(-2147483633).plain(), 0xC8D0D4);
  EXPECT_EQ(Colour(-1).plain(), 0);
  EXPECT_EQ(Colour(0x7F112233).plain(), 0x112233);
}

}  // namespace
}  // namespace veneerer
