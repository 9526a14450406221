// A Skin that is tried: real keys and clicks, and nothing that comes of them.
#include "ui/tryit.h"

#include "canvas/screens.h"
#include "skintool/statejson.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

class Trying : public test::UiFixture {
protected:
  void SetUp() override {
    UiFixture::SetUp();
    QTest::keyClick(&widget<QWidget>("Form1"), Qt::Key_F11);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget<QWidget>("tryit")));
    QCoreApplication::processEvents();
  }

  JukeboxScreen& jukebox() { return widget<JukeboxScreen>("jukebox"); }
  static bool isOpen() {
    const QWidgetList all = QApplication::topLevelWidgets();
    return std::ranges::any_of(all, [](const QWidget* w) { return w->objectName() == u"tryit"; });
  }
  static void settle() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
  void key(Qt::Key key) {
    QTest::keyClick(&widget<QWidget>("tryit"), key);
    settle();
  }
  QPoint middleOf(const Element& element) { return jukebox().placeOf(element).center(); }
  void click(const Element& element) { QTest::mouseClick(&jukebox(), Qt::LeftButton, {}, middleOf(element)); }
  void moveTo(QPointF at, Qt::MouseButtons held = {}) {
    QMouseEvent event(QEvent::MouseMove, at, jukebox().mapToGlobal(at), Qt::NoButton, held, {});
    QApplication::sendEvent(&jukebox(), &event);
  }
  QImage seenOf(const Element& element) {
    return jukebox().grab(jukebox().placeOf(element)).toImage().convertToFormat(QImage::Format_RGB32);
  }
  QByteArray dump() {
    std::FILE* file = std::tmpfile();
    printState(file, *designer, world.dialogs.messages);
    return test::drained(file);
  }
};

TEST_F(Trying, GoesWhereTheMenusLeadAndReturns) {
  ASSERT_TRUE(isOpen());
  EXPECT_EQ(jukebox().entry(), 0);
  click(form1().lvButtons_H1[2]);
  EXPECT_EQ(jukebox().entry(), 4);
  EXPECT_EQ(jukebox().accessibleName(), "Queue Screen");
  click(form1().lvButtons_H37[0]);
  EXPECT_EQ(jukebox().entry(), 4) << "this button is in no menu";
  click(form1().lvButtons_H1[13]);
  EXPECT_EQ(jukebox().entry(), 31);
  click(form1().lvButtons_H54[13]);
  EXPECT_EQ(jukebox().entry(), 0) << "the pop-up is closed";
  key(Qt::Key_Left);
  EXPECT_EQ(jukebox().entry(), 31);
  key(Qt::Key_Right);
  key(Qt::Key_Right);
  EXPECT_EQ(jukebox().entry(), 1);
  key(Qt::Key_Escape);
  EXPECT_FALSE(isOpen());

  designer->choose(*form6().Combo6, 6);
  QTest::keyClick(&canvas(), Qt::Key_F11);
  EXPECT_EQ(jukebox().entry(), 6) << "it begins where the canvas is";
  key(Qt::Key_F11);
  EXPECT_FALSE(isOpen());
}

TEST_F(Trying, LeavesTheSkinUntouched) {
  key(Qt::Key_Escape);
  designer->choose(*form6().Combo6, 4);
  designer->click(form1().lvButtons_H37[0]);
  form1().lvButtons_H37[0].setVisible(false);
  const QByteArray before = dump();
  const int steps = designer->history().stack().count();
  int changes = 0;
  const Attachment watching = state().board.watch([&](const Change&) { ++changes; });
  QTest::keyClick(&canvas(), Qt::Key_F11);
  for (int i = 0; i < 14; ++i) click(form1().lvButtons_H1[i]);
  QTest::mouseClick(&jukebox(), Qt::RightButton, {}, middleOf(form1().lvButtons_H1[0]));
  for (int entry = 0; entry < 32; ++entry) key(Qt::Key_PageDown);
  // The keys of the designer's commands are dead meanwhile.
  QTest::keyClick(&widget<QWidget>("tryit"), Qt::Key_Z, Qt::ControlModifier);
  QTest::keyClick(&widget<QWidget>("tryit"), Qt::Key_PageDown, Qt::ControlModifier);
  key(Qt::Key_Escape);
  EXPECT_EQ(changes, 0);
  EXPECT_TRUE(dump() == before);
  EXPECT_EQ(designer->history().stack().count(), steps);
  EXPECT_TRUE(isScreenShown(state(), 4));
}

TEST_F(Trying, ShowsButtonsHoveredAndPressed) {
  const Button& button = form1().lvButtons_H1[1];
  const QImage plain = seenOf(button);
  moveTo(middleOf(button));
  const QImage hovered = seenOf(button);
  EXPECT_FALSE(hovered == plain);
  EXPECT_EQ(jukebox().cursor().shape(), Qt::PointingHandCursor);
  QTest::mousePress(&jukebox(), Qt::LeftButton, {}, middleOf(button));
  const QImage pressed = seenOf(button);
  EXPECT_FALSE(pressed == hovered || pressed == plain);
  // Dragged off the button, the press leads nowhere.
  moveTo(QPoint(3, 3), Qt::LeftButton);
  QTest::mouseRelease(&jukebox(), Qt::LeftButton, {}, QPoint(3, 3));
  EXPECT_EQ(jukebox().entry(), 0);
  EXPECT_TRUE(seenOf(button) == plain);
}

TEST_F(Trying, ShowsTheCanvasAloneAndFitsTheScreen) {
  // An element in hand has an outline on the canvas.
  designer->click(form1().lvButtons_H1[0]);
  const QWidget& window = widget<QWidget>("tryit");
  EXPECT_TRUE(window.isFullScreen());
  const QSize canvasPixels = canvas().sizeHint();
  const double shown = double(jukebox().width()) / canvasPixels.width();
  EXPECT_NEAR(double(jukebox().height()) / canvasPixels.height(), shown, 0.01);
  EXPECT_TRUE(window.rect().contains(jukebox().geometry()));
  const QSize rest = window.size() - jukebox().size();
  EXPECT_LE(std::min(rest.width(), rest.height()), window.width() / 100 + 8) << "it is as large as it can be";
  QImage alone(jukebox().size(), QImage::Format_RGB32);
  QPainter on(&alone);
  on.scale(shown, shown);
  CanvasPainter painter;
  painter.setStage(stageOf(state(), 0));
  painter.paint(on, form1(), QRect(QPoint(), canvasPixels), 1.0 / 15, 1.0 / 15);
  on.end();
  const QRect place = jukebox().placeOf(form1().lvButtons_H1[0]).adjusted(-4, -4, 4, 4) & jukebox().rect();
  const QImage seen = jukebox().grab(place).toImage().convertToFormat(QImage::Format_RGB32);
  int different = 0;
  for (int y = 0; y < seen.height(); ++y)
    for (int x = 0; x < seen.width(); ++x)
      different += seen.pixel(x, y) != alone.pixel(place.topLeft() + QPoint(x, y)) ? 1 : 0;
  EXPECT_LT(different, seen.width() * seen.height() / 20) << "but for the rounding of the scale";
}

}  // namespace
}  // namespace veneerer
