// The canvas: mouse, outline, repainting, size.
#include <QAccessible>
#include <QMainWindow>
#include <QStatusBar>
#include <limits>

#include "canvas/description.h"
#include "canvas/sections.h"
#include "support/pictures.h"
#include "ui/dirtyarea.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

class Canvas : public test::UiFixture {
protected:
  QColor pixel(QPoint at) { return canvas().grab().toImage().pixelColor(at); }
};

TEST_F(Canvas, AClickSelectsAndADragMoves) {
  Button& button = form1().lvButtons_H1[2];
  const float left = button.left();
  const float top = button.top();
  const QPoint from = middle(button);
  QTest::mousePress(&canvas(), Qt::LeftButton, {}, from);
  EXPECT_EQ(state().globals.SectionNumber, 0) << "a press alone selects nothing";
  QTest::mouseMove(&canvas(), from + QPoint(4, 2));
  QTest::mouseMove(&canvas(), from + QPoint(10, 6));
  EXPECT_EQ(button.left(), left + 150);
  EXPECT_EQ(button.top(), top + 90);
  QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, from + QPoint(10, 6));
  EXPECT_EQ(state().globals.SectionNumber, 1);
  EXPECT_EQ(state().globals.ElementIndex, 2);
  QTest::mouseMove(&canvas(), from);
  EXPECT_EQ(button.left(), left + 150) << "without the button held down nothing moves";
}

TEST_F(Canvas, AReleaseOutsideIsNoClick) {
  const QPoint label = middle(form1().Label4[0]);
  QTest::mousePress(&canvas(), Qt::LeftButton, {}, label);
  QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, label + QPoint(0, 300));
  EXPECT_EQ(state().globals.SectionNumber, 0);
}

TEST_F(Canvas, OnlyTheRightPressGivesAButtonItsPictureAndNeitherItNorTheMiddleOneClicks) {
  test::writePicture(path("images/red.bmp"), 20, 20, Qt::red);
  world.dialogs.files.enqueue(path("images/red.bmp"));
  Button& button = form1().lvButtons_H1[0];
  QTest::mouseClick(&canvas(), Qt::MiddleButton, {}, middle(button));
  EXPECT_NEAR(state().globals.DragAnchorX, button.width() / 2, 15);
  EXPECT_TRUE(button.picture().isNull());
  drag(middle(button), QPoint(9, 9), Qt::RightButton);
  EXPECT_FALSE(button.picture().isNull());
  EXPECT_EQ(state().globals.SectionNumber, 0);
}

TEST_F(Canvas, ShowsChangesAndOutlinesTheElementThatIsHeldOrInHand) {
  Label& label = form1().Label4[0];
  label.setOpaque(true);
  label.setBackColor(0x0000FF);
  EXPECT_EQ(pixel((windowRect(label).bottomRight() / 15).toPoint() - QPoint(4, 4)), QColor(255, 0, 0));
  const QPoint edge(middle(label).x(), qRound(windowRect(label).bottom() / 15));
  const QColor before = pixel(edge);
  const auto isOutlined = [&] {
    QTest::qWait(1);
    const QColor line = pixel(edge);
    return line != before && (line == Qt::white || line == Qt::black);
  };
  QTest::mousePress(&canvas(), Qt::LeftButton, {}, middle(label));
  EXPECT_TRUE(isOutlined());
  QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, QPoint(1, 1));
  EXPECT_FALSE(isOutlined()) << "let go elsewhere it isn't in hand";
  QTest::mouseClick(&canvas(), Qt::LeftButton, {}, middle(label));
  EXPECT_TRUE(isOutlined());
}

TEST_F(Canvas, ANoteOutlastsThePointerAndEndsWithTheNextPress) {
  auto* line = widget<QMainWindow>("Form1").statusBar()->findChild<QLabel*>();
  ASSERT_TRUE(line);
  const auto shown = [&] { return line->text().toStdString(); };
  state().notes.say("One <b>refused</b>.");
  state().notes.say("Two left.");
  EXPECT_EQ(shown(), "One <b>refused</b>.   Two left.");
  EXPECT_EQ(line->textFormat(), Qt::PlainText);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(line)->text(QAccessible::Name).toStdString(),
            "Note: One <b>refused</b>.   Two left.");
  QTest::mouseMove(&canvas(), middle(form1().Label4[0]));
  QTest::qWait(1);
  EXPECT_EQ(shown(), "One <b>refused</b>.   Two left.");
  QTest::mousePress(&canvas(), Qt::LeftButton, {}, middle(form1().Label4[0]));
  EXPECT_TRUE(line->text().startsWith("Label4(0)")) << shown();
  QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, middle(form1().Label4[0]));
  state().notes.say("Three.");
  EXPECT_EQ(shown(), "Three.");
  QTest::qWait(1);
  QTest::keyClick(&canvas(), Qt::Key_A);
  EXPECT_NE(shown(), "Three.");
}

TEST_F(Canvas, AButtonUnderThePointerShowsItsHoverColoursAndLooksPressedWhileItIsHeld) {
  Button& button = form1().lvButtons_H1[2];
  button.set(Property::HoverColorLocks, 0);
  button.set(Property::HoverBackColor, Colour(0x00FF00));
  button.setGradientMode(0);
  button.setBackColor(0x0000FF);
  const QPoint at = middle(button) + QPoint(0, 24);
  QTest::mouseMove(&canvas(), middle(form1().Label4[0]));
  const QColor plain = pixel(at);
  QTest::mouseMove(&canvas(), at);
  const QColor hovered = pixel(at);
  EXPECT_NE(hovered, plain);
  QTest::mousePress(&canvas(), Qt::LeftButton, {}, at);
  EXPECT_LT(pixel(at).lightness(), hovered.lightness());
  QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, at);
  EXPECT_EQ(pixel(at), hovered);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&canvas(), &leave);
  EXPECT_EQ(pixel(at), plain);
}

TEST_F(Canvas, APressGoesThroughAFrameToItsCover) {
  form6().Combo6->select(9);
  QImage ring(40, 40, QImage::Format_ARGB32_Premultiplied);
  ring.fill(Qt::red);
  QPainter painter(&ring);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  painter.fillRect(5, 5, 30, 30, Qt::transparent);
  painter.end();
  AnimatedFrame& frame = form1().ucAniGIF1[0];
  frame.setPicture(Picture::drawn(ring));
  const float left = form1().Image2[0].left();
  drag(middle(frame), QPoint(3, 0));
  EXPECT_EQ(form1().Image2[0].left(), left + 45);
  EXPECT_EQ(state().globals.SectionNumber, sectionOf(state(), form1().Image2));
  const QPoint corner = (windowRect(frame).topLeft() / 15).toPoint() + QPoint(2, 2);
  QTest::mouseClick(&canvas(), Qt::LeftButton, {}, corner);
  EXPECT_EQ(state().globals.SectionNumber, sectionOf(state(), form1().ucAniGIF1));
}

TEST_F(Canvas, FollowsTheWindowsSize) {
  form1().setWidth(9000);
  form1().setHeight(6000);
  EXPECT_EQ(canvas().size(), QSize(600, 400));
}

TEST_F(Canvas, SurvivesAbsurdGeometry) {
  Button& button = form1().lvButtons_H1[2];
  designer->click(button);
  for (const float odd : {3e38f, -3e38f, std::numeric_limits<float>::quiet_NaN(), 1e9f, 0.0f}) {
    button.place(odd, odd, odd, odd);
    QTest::qWait(1);
    EXPECT_FALSE(canvas().grab().isNull());
    button.place(15, 15, 3e38f, 3e38f);
    QTest::qWait(1);
    EXPECT_FALSE(canvas().grab().isNull());
  }
}

TEST_F(Canvas, NamesWhatIsUnderThePointer) {
  Screen screen;
  form1().Label16[3].place(120, 900, 2400, 301.5f);
  EXPECT_EQ(describe(state(), form1().Label16[3], screen).toStdString(),
            "Label16(3)   Section 52   Search Results Screen   120, 900  2400 × 301.5 twips"
            "   8, 60  160 × 20 px");
  const QString button = describe(state(), form1().lvButtons_H1[2], screen);
  EXPECT_TRUE(button.startsWith("lvButtons_H1(2)   Section 1   Frame, in Picture2(0)"))
      << button.toStdString();
  EXPECT_TRUE(describe(state(), form1().Label29.operator*(), screen).contains("no Section"));
}

class Dirt : public testing::Test {
protected:
  Dirt() {
    box.setContainer(state.form1);
    box.place(1500, 1500, 3000, 3000);
    label.setContainer(box);
    label.place(150, 150, 300, 150);
    watching = state.board.watch([this](const Change& change) { dirty.add(change); });
  }
  State state;
  PictureBox& box = state.form1.Picture2[0];
  Label& label = state.form1.Label1[0];
  DirtyArea dirty{1.0 / 15, 1.0 / 15};
  Attachment watching;
};

TEST_F(Dirt, CoversTheOldPlaceAndTheNewOne) {
  label.setLeft(1500);
  const QRegion region = dirty.take();
  EXPECT_TRUE(region.contains(QRect(110, 110, 20, 10)));
  EXPECT_TRUE(region.contains(QRect(200, 110, 20, 10)));
  EXPECT_FALSE(region.contains(QPoint(160, 115))) << "what lies between stays";
  EXPECT_TRUE(dirty.isEmpty());
  label.setHeight(15);
  EXPECT_TRUE(dirty.take().contains(QRect(200, 110, 20, 10))) << "what it has left behind";
}

TEST_F(Dirt, LeavesOutWhatCannotBeSeen) {
  label.setVisible(false);
  EXPECT_TRUE(dirty.take().contains(QRect(110, 110, 20, 10)));
  label.setCaption("unseen");
  label.setLeft(0);
  EXPECT_TRUE(dirty.isEmpty());
  box.setVisible(false);
  dirty.take();
  label.setVisible(true);
  EXPECT_TRUE(dirty.isEmpty()) << "its container is hidden";
}

TEST_F(Dirt, StaysSmallHoweverMuchChanges) {
  for (int i = 0; i < 20; ++i) {
    const auto step = static_cast<float>(i);
    state.form1.Label3[i].setContainer(state.form1);
    for (int k = 0; k < 10; ++k)
      state.form1.Label3[i].place(step * 900, static_cast<float>(k) * 700, 600, 200);
  }
  EXPECT_LE(dirty.take().rectCount(), 32);
}

}  // namespace
}  // namespace veneerer
