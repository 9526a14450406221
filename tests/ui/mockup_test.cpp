// The picture that the canvas is compared with.
#include <QBackingStore>
#include <QMainWindow>
#include <QMenu>

#include "support/files.h"
#include "support/pictures.h"
#include "ui/canvasview.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

class MockUps : public test::UiFixture {
protected:
  void SetUp() override {
    UiFixture::SetUp();
    widget<CanvasView>("view").zoomTo(Zoom(100));
    QTest::qWait(1);
    for (const Family* family : form1().families())
      for (Element* element : family->members()) element->setVisible(false);
    form1().setPicture(Picture());
    form1().setBackColor(Colour::of(QColor(0, 0, 200)));
  }
  void trigger(const char* text) {
    for (const QMenu* menu : widget<QMainWindow>("Form1").findChildren<QMenu*>())
      if (menu->title() == QLatin1String("&Mock-up"))
        for (QAction* action : menu->findChildren<QAction*>())
          if (action->text() == QLatin1String(text)) return action->trigger();
    ADD_FAILURE() << "no entry " << text;
  }
  void choose(const QString& file) {
    world.dialogs.files.enqueue(file);
    trigger("&Choose Picture...");
  }
  QColor pixel(int x, int y) { return canvas().grab().toImage().pixelColor(x, y); }
  static bool isNear(QColor one, QColor other) {
    return qAbs(one.red() - other.red()) < 3 && qAbs(one.green() - other.green()) < 3 &&
           qAbs(one.blue() - other.blue()) < 3;
  }
};

TEST_F(MockUps, LiesOverTheScreenAndGoes) {
  const QColor plain(0, 0, 200);
  ASSERT_EQ(pixel(5, 5), plain);
  test::writePicture(path("images/red.png"), 60, 40, QColor(200, 0, 0));
  choose(path("images/red.png"));
  EXPECT_TRUE(isNear(pixel(5, 5), QColor(100, 0, 100))) << "half of each";
  EXPECT_TRUE(isNear(pixel(59, 39), QColor(100, 0, 100)));
  EXPECT_EQ(pixel(60, 39), plain) << "its own pixels, from the canvas's corner on";
  EXPECT_EQ(pixel(59, 40), plain);
  trigger("100 %");
  EXPECT_EQ(pixel(5, 5), QColor(200, 0, 0));
  widget<CanvasView>("view").zoomTo(Zoom(200));
  QTest::qWait(1);
  EXPECT_EQ(pixel(119, 79), QColor(200, 0, 0)) << "it zooms with the canvas";
  EXPECT_EQ(pixel(121, 79), plain);
  trigger("&Remove");
  EXPECT_EQ(pixel(5, 5), plain);
  EXPECT_FALSE(designer->history().isModified()) << "it is no part of the Skin";
}

TEST_F(MockUps, LiesUnderAScreenThatIsSeenThrough) {
  QImage picture(60, 40, QImage::Format_ARGB32);
  picture.fill(QColor(200, 0, 0));
  for (int x = 0; x < 30; ++x)
    for (int y = 0; y < 40; ++y) picture.setPixelColor(x, y, Qt::transparent);
  ASSERT_TRUE(picture.save(path("images/half.png")));
  choose(path("images/half.png"));
  trigger("&Under the Screen");
  trigger("80 %");
  EXPECT_TRUE(isNear(pixel(45, 5), QColor(40, 0, 160))) << "the screen has the strength";
  EXPECT_EQ(pixel(5, 5), QColor(0, 0, 200));
}

TEST_F(MockUps, IsClippedToTheCanvasAndPaintedOnceHoweverOften) {
  test::writePicture(path("images/large.png"), 4000, 3000, QColor(200, 0, 0));
  choose(path("images/large.png"));
  auto& view = widget<CanvasView>("view");
  const QPoint corner = view.origin() + QPoint(canvas().width(), canvas().height() / 3);
  const QImage around = view.viewport()->grab().toImage();
  EXPECT_NE(around.pixelColor(corner + QPoint(3, 0)).red(), 100);
  for (int i = 0; i < 3; ++i) {
    canvas().repaint(QRect(0, 0, 20, 20));
    QTest::qWait(1);
  }
  const auto* screen = dynamic_cast<const QImage*>(canvas().backingStore()->paintDevice());
  ASSERT_TRUE(screen);
  EXPECT_TRUE(
      isNear(screen->pixelColor(canvas().mapTo(canvas().window(), QPoint(5, 5))), QColor(100, 0, 100)));
}

TEST_F(MockUps, WhatIsNoPictureIsToldAndChangesNothing) {
  test::writeBytes(path("images/bad.png"), "no picture at all");
  world.dialogs.messages.clear();
  choose(path("images/bad.png"));
  EXPECT_EQ(world.dialogs.messages.size(), 1);
  EXPECT_EQ(pixel(5, 5), QColor(0, 0, 200));
  choose(QString());
  EXPECT_EQ(world.dialogs.messages.size(), 1) << "a cancel says nothing";
}

}  // namespace
}  // namespace veneerer
