// Selecting on the overlay, with the real mouse.
#include <QMenu>
#include <QPainter>

#include "painting/canvaspainter.h"
#include "ui/canvaswidget.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

class Overlay : public test::UiFixture {
protected:
  void SetUp() override {
    UiFixture::SetUp();
    // The canvas stands still at its own size.
    QTest::keyClick(&widget<QWidget>("Form1"), Qt::Key_0, Qt::ControlModifier);
    QTest::qWait(1);
  }
  std::vector<Element*> selected() { return designer->overlay().elements(); }
  QMenu* menu() {
    auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    return popup;
  }
};

TEST_F(Overlay, ShiftSelectsAndPressesNothing) {
  Button& first = form1().lvButtons_H1[2];
  Button& second = form1().lvButtons_H1[3];
  QTest::mouseClick(&canvas(), Qt::LeftButton, Qt::ShiftModifier, middle(first));
  QTest::mouseClick(&canvas(), Qt::LeftButton, Qt::ShiftModifier, middle(second));
  EXPECT_EQ(selected(), (std::vector<Element*>{&first, &second}));
  QTest::mouseClick(&canvas(), Qt::LeftButton, Qt::ShiftModifier, middle(first));
  EXPECT_EQ(selected(), std::vector<Element*>{&second});
  QTest::keyClick(&canvas(), Qt::Key_Escape);
  EXPECT_TRUE(selected().empty());
  EXPECT_EQ(state().globals.SectionNumber, 0);
  EXPECT_FALSE(designer->history().isModified());
}

TEST_F(Overlay, ABandSelectsWhatLiesInIt) {
  const Button& button = form1().lvButtons_H1[2];
  const QRect place = windowRect(button).toAlignedRect();
  const QPoint from = place.topLeft() / 15 - QPoint(2, 2);
  const QPoint to = place.bottomRight() / 15 + QPoint(2, 2);
  QTest::mousePress(&canvas(), Qt::LeftButton, Qt::ShiftModifier, from);
  QTest::mouseMove(&canvas(), to);
  QTest::mouseRelease(&canvas(), Qt::LeftButton, Qt::ShiftModifier, to);
  EXPECT_EQ(selected(), std::vector<Element*>{&form1().lvButtons_H1[2]});
}

TEST_F(Overlay, CtrlListsWhatLiesBeneathAndMovesOnlyWhenDragged) {
  Button& button = form1().lvButtons_H1[2];
  const float left = button.left();
  QTest::mouseClick(&canvas(), Qt::LeftButton, Qt::ControlModifier, middle(button));
  ASSERT_TRUE(menu());
  EXPECT_EQ(state().globals.SectionNumber, 0) << "nothing was pressed";
  ASSERT_GT(menu()->actions().size(), 1);
  menu()->actions().at(0)->trigger();
  EXPECT_EQ(state().globals.ElementIndex, 2) << "the topmost stands first";
  menu()->close();
  QTest::mousePress(&canvas(), Qt::LeftButton, Qt::ControlModifier, middle(button));
  QTest::mouseMove(&canvas(), middle(button) + QPoint(40, 0));
  QTest::mouseMove(&canvas(), middle(button) + QPoint(60, 0));
  QTest::mouseRelease(&canvas(), Qt::LeftButton, Qt::ControlModifier, middle(button) + QPoint(60, 0));
  EXPECT_NE(button.left(), left);
}

TEST_F(Overlay, NothingElseStaysSelectedThanWhatIsTakenInHandAndSeen) {
  Button& button = form1().lvButtons_H1[2];
  const auto clickWithShift = [&] {
    QTest::mouseClick(&canvas(), Qt::LeftButton, Qt::ShiftModifier, middle(button));
  };
  clickWithShift();
  QTest::mouseClick(&canvas(), Qt::LeftButton, {}, middle(form1().lvButtons_H1[3]));
  EXPECT_TRUE(selected().empty());
  EXPECT_EQ(state().globals.ElementIndex, 3);
  clickWithShift();
  QTest::mouseClick(&widget<QWidget>("Form6.Label5"), Qt::LeftButton);
  EXPECT_TRUE(selected().empty()) << "a sample is in hand now";
  trigger("&Next Screen");
  Element& panel = *form1().Picture1.find(form6().Combo6->listIndex());
  Element& within = *form1().Label16[3].container();
  ASSERT_NE(&panel, &within);
  form1().Label16[3].setContainer(panel);
  clickWithShift();
  designer->overlay().toggle(form1().Label16[3]);
  EXPECT_EQ(selected().size(), 2);
  trigger("&Next Screen");
  EXPECT_EQ(selected(), std::vector<Element*>{&button}) << "the frame is always in sight";
}

TEST_F(Overlay, WhatIsLockedIsNeitherGrabbedNorMovedNorSized) {
  Button& button = form1().lvButtons_H1[2];
  QTest::mouseClick(&canvas(), Qt::LeftButton, {}, middle(button));
  QTest::qWait(1);
  const QRect outline = static_cast<CanvasWidget&>(canvas()).outline();
  EXPECT_FALSE(menuEntry("Unloc&k").isEnabled());
  trigger("&Lock");
  EXPECT_FALSE(menuEntry("&Lock").isEnabled());
  const QRectF before = windowRect(button);
  QTest::keyClick(&canvas(), Qt::Key_Right);
  drag(middle(button), QPoint(30, 0));
  drag(handleRect(Handle::Bottom, outline, canvas().rect()).center(), QPoint(0, 30));
  EXPECT_EQ(windowRect(button), before);
  QTest::mouseClick(&canvas(), Qt::LeftButton, Qt::ShiftModifier, middle(button));
  trigger("Unloc&k");
  QTest::keyClick(&canvas(), Qt::Key_Right);
  EXPECT_EQ(windowRect(button), before.translated(15, 0));
}

TEST_F(Overlay, TheEyedropperSeesTheCanvasAlone) {
  Button& button = form1().lvButtons_H1[2];
  const QPoint edge = (windowRect(button).topLeft() / 15).toPoint() + QPoint(9, 0);
  QImage painted(canvas().size(), QImage::Format_RGB32);
  QPainter painter(&painted);
  CanvasPainter().paint(painter, form1(), painted.rect(), 1.0 / 15, 1.0 / 15);
  designer->overlay().select({&button});
  QTest::mouseMove(&canvas(), edge);
  QTest::qWait(1);
  const QRgb seen = canvas().grab(QRect(edge, QSize(1, 1))).toImage().pixel(0, 0);
  ASSERT_NE(seen, painted.pixel(edge)) << "the mark of the selection lies there";
  std::optional<Colour> picked;
  static_cast<CanvasWidget&>(canvas()).hands().pickColour([&](Colour colour) { picked = colour; });
  QTest::mouseClick(&canvas(), Qt::LeftButton, {}, edge);
  EXPECT_EQ(picked, Colour::of(painted.pixelColor(edge)));
  EXPECT_EQ(selected(), std::vector<Element*>{&button}) << "it is no press";
}

}  // namespace
}  // namespace veneerer
