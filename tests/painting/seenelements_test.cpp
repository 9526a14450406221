// What hides behind something opaque costs nothing, and everything looks as if all were painted.
#include "painting/seenelements.h"

#include <gtest/gtest.h>

#include <QSet>

#include "elements/colour.h"
#include "painting/buttonstyle.h"
#include "support/canvasfixture.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

constexpr QRect kCanvas(0, 0, 640, 480);

class Seen : public test::CanvasFixture {
protected:
  std::vector<SeenElement> seen() const { return seenElements(form, kCanvas, PixelScale()); }

  quint32 random(quint32 below) { return (seed_ = seed_ * 1664525 + 1013904223) / 65536 % below; }

  /// Puts it somewhere, partly outside the canvas and between the pixels.
  void scatter(Element& element) {
    const QPointF corner(random(600) - 100.0 + random(4) / 4.0, random(400) - 100.0 + random(4) / 4.0);
    put(element, {corner, QSizeF(40 + random(500), 40 + random(400))});
  }

private:
  quint32 seed_ = 1;
};

TEST_F(Seen, WhatLiesBehindAnOpaqueElementIsNotPainted) {
  PictureBox& front = form.Picture1[5];
  for (int i = 0; i < 10; ++i) put(form.lvButtons_H1[i], {100, 100, 300, 300});
  put(form.Label4[0], {150, 150, 10, 10});
  put(front, {90, 90, 320, 320});
  ASSERT_EQ(seen().size(), 1);
  EXPECT_EQ(seen()[0].element, &front);
  front.setVisible(false);
  EXPECT_EQ(seen().size(), 2) << "the label and the front button";
  form.lvButtons_H1[9].setButtonShape(1);
  EXPECT_EQ(seen().size(), 3) << "its leaning side shows what lies behind";
}

TEST_F(Seen, BehindARoundButtonOnlyItsCornersShow) {
  for (int style = 0; style < kButtonStyleCount; ++style) {
    const int radius = static_cast<int>(buttonStyle(style).radius);
    if (radius >= 150) continue;  // round all over
    for (int i = 0; i < 2; ++i) put(form.lvButtons_H1[i], {100, 100, 300, 300});
    form.lvButtons_H1[1].setButtonStyle(style);
    for (const SeenElement& element : seen()) {
      if (element.element != &form.lvButtons_H1[0]) continue;
      EXPECT_LE((element.clip & element.rect).height(), radius) << style;
    }
  }
}

TEST_F(Seen, ASeeThroughElementHidesNothing) {
  put(form.lvButtons_H1[0], {100, 100, 200, 200});
  Label& label = form.Label4[0];
  put(label, {0, 0, 600, 400});
  label.setOpaque(false);
  EXPECT_EQ(seen().size(), 2);
  label.setOpaque(true);
  EXPECT_EQ(seen().size(), 1);
  label.setVisible(false);
  put(form.Image2[0], {0, 0, 600, 400});
  EXPECT_EQ(seen().size(), 2) << "nobody knows what its picture covers";
}

TEST_F(Seen, AContainerHidesWhatLiesBehindItButNotWhatItHolds) {
  put(form.lvButtons_H1[0], {100, 100, 200, 200});
  put(form.Picture1[5], {50, 50, 400, 400});
  put(form.lvButtons_H1[1], {100, 100, 200, 200});
  form.lvButtons_H1[1].setContainer(form.Picture1[5]);
  QSet<const Element*> found;
  for (const SeenElement& element : seen()) found.insert(element.element);
  EXPECT_EQ(found, (QSet<const Element*>{&form.Picture1[5], &form.lvButtons_H1[1]}));
}

TEST_F(Seen, ThePictureIsTheSameAsWithEverythingPainted) {
  for (int round = 0; round < 12; ++round) {
    for (int i = 0; i < 14; ++i) {
      Button& button = form.lvButtons_H1[i];
      button.setButtonShape((i + round) % Button::kFirstCustomShape);
      button.setButtonStyle(i % 8);
      button.setGradientMode(i % 5);
      button.setBackColor(0x202020 * i);
      button.setGradientColor(0xFFFFFF - 0x0F0F0F * i);
      scatter(button);
    }
    for (int i = 0; i < 5; ++i) {
      form.Label4[i].setOpaque(i % 2 == 0);
      form.Label4[i].setCaption("Label");
      scatter(form.Label4[i]);
      if (i > 0) scatter(form.Picture1[i]);
    }
    QImage culled(kCanvas.size(), QImage::Format_RGB32);
    QImage whole = culled;
    QPainter onCulled(&culled);
    painter.paint(onCulled, form, kCanvas, 1.0 / 15, 1.0 / 15);
    QPainter onWhole(&whole);
    onWhole.fillRect(kCanvas, form.backColor().toQColor());
    for (const Element* element : form.children())
      if (element->isVisible())
        painter.paintElement(onWhole, *element, *pixelRect(*element, QPointF(), PixelScale()));
    onCulled.end();
    onWhole.end();
    // Where a gradient is steep, a piece falls on another step of its colours.
    EXPECT_LE(test::largestDifference(culled, whole), 8) << round;
  }
}

}  // namespace
}  // namespace veneerer
