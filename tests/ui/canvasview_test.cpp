// The view on the canvas: zoom, panning, handles, keys, rulers. Real events on the real windows.
#include "ui/canvasview.h"

#include <QMainWindow>
#include <QMenu>
#include <QScrollBar>
#include <QToolButton>

#include "designer/restoredstate.h"
#include "laws/law.h"
#include "painting/canvaspainter.h"
#include "ui/edgehandle.h"
#include "ui/rulers.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

class View : public test::UiFixture {
protected:
  CanvasView& view() { return widget<CanvasView>("view"); }
  int steps() { return designer->history().stack().count(); }

  static void mouse(QWidget& to, QEvent::Type type, QPointF at, Qt::MouseButtons held,
                    Qt::MouseButton button = Qt::NoButton, Qt::KeyboardModifiers keys = {}) {
    QMouseEvent event(type, at, to.mapToGlobal(at), button, held, keys);
    QApplication::sendEvent(&to, &event);
    QCoreApplication::processEvents();
  }
  static void press(QWidget& to, QPointF at, Qt::MouseButton button = Qt::LeftButton) {
    mouse(to, QEvent::MouseButtonPress, at, button, button);
  }
  static void move(QWidget& to, QPointF at, Qt::MouseButton held = Qt::LeftButton,
                   Qt::KeyboardModifiers keys = {}) {
    mouse(to, QEvent::MouseMove, at, held, Qt::NoButton, keys);
  }
  static void release(QWidget& to, QPointF at, Qt::MouseButton button = Qt::LeftButton) {
    mouse(to, QEvent::MouseButtonRelease, at, Qt::NoButton, button);
  }
  void wheel(QPointF at, int notches) {
    QWheelEvent event(at, view().viewport()->mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view().viewport(), &event);
    QCoreApplication::processEvents();
  }

  /// What the hand holds, and where.
  QString inHand() {
    const Globals& g = state().globals;
    const QString text = QStringLiteral("%1 %2 %3 %4").arg(g.SectionNumber).arg(g.ElementIndex);
    return text.arg(double(g.DragAnchorX)).arg(double(g.DragAnchorY));
  }
  /// The canvas pixel that lies under a place of the viewport.
  QPointF under(QPointF place) { return (place - view().origin()) / view().zoom().factor(); }
};

TEST_F(View, AClickAndADragDoTheSameAtEachZoom) {
  const auto drag = [&](int percent, const std::vector<QPoint>& pixels) {
    view().zoomTo(Zoom(percent));
    // The middle of a canvas pixel, wherever it lies between those of the view.
    const auto at = [&](QPoint pixel) { return (QPointF(pixel) + QPointF(0.5, 0.5)) * percent / 100.0; };
    press(canvas(), at(pixels.front()));
    for (const QPoint& pixel : pixels) move(canvas(), at(pixel));
    release(canvas(), at(pixels.back()));
    const std::pair done{inHand(), test::RestoredState(state())};
    designer->history().undoAll();
    state().globals.SectionNumber = 0;
    return done;
  };
  const QPoint from = middle(form1().lvButtons_H1[2]);
  // The first click of all sets what no undo takes back.
  drag(100, {from});
  const test::RestoredState untouched(state());
  test::tryLaw(25, [&] {
    std::vector<QPoint> pixels{from};
    const auto way = rc::gen::inRange(-60, 61);
    for (const auto& [x, y] :
         *rc::gen::nonEmpty(rc::gen::container<std::vector<std::pair<int, int>>>(rc::gen::pair(way, way))))
      pixels.push_back(from + QPoint(x, y));
    const auto [plainHand, plain] = drag(100, pixels);
    RC_ASSERT(plain.difference(untouched) != "");
    const auto [hand, zoomed] = drag(*rc::gen::inRange(Zoom::kLeast, Zoom::kMost + 1), pixels);
    RC_ASSERT(hand == plainHand);
    RC_ASSERT(plain.difference(zoomed) == "");
  });
}

TEST_F(View, AtItsOwnSizeTheCanvasIsPaintedAsEver) {
  form6().Combo6->select(5);
  const auto painted = [&] {
    QImage image(canvas().size(), QImage::Format_RGB32);
    QPainter painter(&image);
    CanvasPainter().paint(painter, form1(), image.rect(), 1.0 / 15, 1.0 / 15);
    return image;
  };
  const auto shown = [&] { return canvas().grab().toImage().convertToFormat(QImage::Format_RGB32); };
  EXPECT_TRUE(shown() == painted());
  view().zoomTo(Zoom(300));
  EXPECT_EQ(canvas().width(), form1().width() / 15 * 3);
  view().zoomTo(Zoom(100));
  EXPECT_TRUE(shown() == painted());
}

TEST_F(View, TheWheelZoomsAtThePointerAndTheKeysStepThroughAList) {
  const QPointF place(200, 150);
  view().zoomTo(Zoom(200));
  for (const int notches : {1, 1, 2, -1, -1}) {
    const QPointF before = under(place);
    wheel(place, notches);
    const QPointF way = under(place) - before;
    EXPECT_LE(way.manhattanLength() * view().zoom().factor(), 2.5) << view().zoom().percent();
  }
  EXPECT_EQ(view().zoom().percent(), 400);
  wheel(place, 100);
  EXPECT_EQ(view().zoom().percent(), Zoom::kMost);
  wheel(place, -100);
  EXPECT_EQ(view().zoom().percent(), Zoom::kLeast);
  view().zoomTo(Zoom(70));
  view().zoomIn();
  EXPECT_EQ(view().zoom().percent(), 75);
  view().zoomOut();
  EXPECT_EQ(view().zoom().percent(), 67);
  EXPECT_EQ(widget<QToolButton>("zoom").text(), QStringLiteral("67 %"));
}

TEST_F(View, ANewSkinFitsUntilTheOperatorZooms) {
  form1().setWidth(60000);
  form1().setHeight(30000);
  const auto isWholeInSight = [&] { return view().viewport()->rect().contains(canvas().geometry()); };
  EXPECT_LT(view().zoom().percent(), 100);
  EXPECT_TRUE(isWholeInSight());
  EXPECT_FALSE(view().horizontalScrollBar()->isVisible());
  form1().setWidth(3000);
  form1().setHeight(3000);
  EXPECT_EQ(view().zoom().percent(), 100) << "never above its own size";
  view().zoomTo(Zoom(150));
  form1().setWidth(60000);
  EXPECT_EQ(view().zoom().percent(), 150);
  EXPECT_EQ(canvas().width(), 6000);
  EXPECT_EQ(form1().width(), 60000) << "the zoom is the view's own";
  makeSkin(QStringLiteral("T"));
  designer->reload(QStringLiteral("T"));
  EXPECT_TRUE(isWholeInSight());
}

TEST_F(View, AMiddlePressWithoutAMovementIsAPressAndAMovementPans) {
  view().zoomTo(Zoom(400));
  Label& label = form1().Label4[0];
  const QPointF at = QPointF(middle(label)) * 4;
  press(canvas(), at, Qt::MiddleButton);
  move(canvas(), at + QPoint(1, 0), Qt::MiddleButton);
  release(canvas(), at, Qt::MiddleButton);
  EXPECT_NEAR(state().globals.DragAnchorX, label.width() / 2, 15);
  state().globals.DragAnchorX = -1;
  const QPoint before = view().origin();
  for (const Qt::MouseButton button : {Qt::MiddleButton, Qt::LeftButton}) {
    if (button == Qt::LeftButton) QTest::keyPress(&canvas(), Qt::Key_Space);
    press(canvas(), at, button);
    // The canvas goes with the pointer, so that the pointer's place in it stays.
    mouse(canvas(), QEvent::MouseMove, at - QPoint(20, 10), button);
    release(canvas(), at, button);
  }
  QTest::keyRelease(&canvas(), Qt::Key_Space);
  EXPECT_EQ(view().origin(), before - QPoint(40, 20));
  EXPECT_EQ(state().globals.DragAnchorX, -1) << "neither is a press";
  EXPECT_EQ(state().globals.SectionNumber, 0);
}

TEST_F(View, TheArrowKeysNudgeWhatIsInHand) {
  Button& button = form1().lvButtons_H1[2];
  const QPointF place(button.left(), button.top());
  QTest::keyClick(&canvas(), Qt::Key_Right);
  EXPECT_EQ(steps(), 0) << "nothing is in hand";
  QTest::mouseClick(&canvas(), Qt::LeftButton, {}, middle(button));
  const int before = steps();
  QTest::keyClick(&canvas(), Qt::Key_Right);
  QTest::keyClick(&canvas(), Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(QPointF(button.left(), button.top()) - place, QPointF(15, -150));
  EXPECT_EQ(steps(), before + 2);
  for (int i = 0; i < 5; ++i) QTest::keyPress(&canvas(), Qt::Key_Left);
  QTest::keyRelease(&canvas(), Qt::Key_Left);
  EXPECT_EQ(steps(), before + 3) << "a key that is held is one step";
  Button& other = form1().lvButtons_H1[3];
  const QPointF places(button.left(), other.left());
  designer->overlay().select({&button, &other});
  QTest::keyClick(&canvas(), Qt::Key_Right);
  EXPECT_EQ(QPointF(button.left(), other.left()) - places, QPointF(15, 15)) << "all that is selected";
  EXPECT_EQ(steps(), before + 4);
  designer->overlay().clear();
  form6().Combo6->select(5);
  button.container()->setVisible(false);
  QTest::keyClick(&canvas(), Qt::Key_Left);
  EXPECT_EQ(steps(), before + 4) << "what can't be seen stays";
}

TEST_F(View, HandlesTypeTheSizeOfWhatIsInHand) {
  Label& label = form1().Label4[0];
  QTest::mouseClick(&canvas(), Qt::LeftButton, {}, middle(label));
  ASSERT_TRUE(QTest::qWaitFor([&] { return !view().canvas().outline().isNull(); }, 60'000));
  const QSizeF size(label.width(), label.height());
  const int before = steps();
  const QRect outline = view().canvas().outline();
  const QPoint corner = handleRect(Handle::Corner, outline, canvas().rect()).center();
  press(canvas(), corner);
  move(canvas(), corner + QPoint(3, 4));
  move(canvas(), corner + QPoint(10, 6));
  release(canvas(), corner + QPoint(10, 6));
  EXPECT_EQ(QSizeF(label.width(), label.height()) - size, QSizeF(150, 90));
  EXPECT_EQ(form6().Text3[1].text().toFloat(), label.width());
  EXPECT_EQ(steps(), before + 1);
  EXPECT_EQ(state().globals.SectionNumber, 38) << "a handle is no click";
  designer->history().undo();
  EXPECT_EQ(QSizeF(label.width(), label.height()), size);
}

TEST_F(View, EdgeHandlesGiveTheCanvasWindowItsSize) {
  form1().setWidth(6000);
  form1().setHeight(4500);
  view().zoomTo(Zoom(200));
  const int before = steps();
  for (EdgeHandle* handle : view().viewport()->findChildren<EdgeHandle*>()) {
    if (handle->handle() != Handle::Corner) continue;
    press(*handle, QPointF(4, 4));
    mouse(*handle, QEvent::MouseMove, QPointF(14, 4), Qt::LeftButton);
    mouse(*handle, QEvent::MouseMove, QPointF(24, 24), Qt::LeftButton);
    release(*handle, QPointF(24, 24));
  }
  EXPECT_GT(form1().width(), 6000);
  EXPECT_EQ(std::fmod(form1().width(), 15), 0);
  EXPECT_EQ(steps(), before + 2) << "what was set ahead, and the drag";
  designer->history().undo();
  EXPECT_EQ(form1().width(), 6000);
}

TEST_F(View, ADragSnapsOnlyWhileControlIsHeld) {
  form6().Combo6->select(13);
  Label& label = form1().Label4[0];
  Label& other = form1().Label4[1];
  for (Label* each : {&label, &other}) {
    each->setContainer(form1());
    each->setVisible(true);
    each->bringToFront();
  }
  label.place(3000, 3000, 900, 300);
  other.place(4515, 4500, 600, 450);
  const QPoint from = middle(label);
  press(canvas(), from);
  move(canvas(), from + QPoint(98, 50));
  EXPECT_EQ(label.left(), 4470);
  move(canvas(), from + QPoint(98, 50), Qt::LeftButton, Qt::ControlModifier);
  EXPECT_EQ(label.left(), 4515) << "the neighbour's left";
  EXPECT_EQ(label.top(), 3750);
  release(canvas(), from + QPoint(98, 50));
}

TEST_F(View, ASizeSnapsOnlyWhileControlIsHeldAndShowsItsLine) {
  form6().Combo6->select(13);
  Label& label = form1().Label16[1];
  Label& other = form1().Label4[1];
  for (Label* each : {&label, &other}) {
    each->setContainer(form1());
    each->setVisible(true);
    each->bringToFront();
  }
  label.place(3000, 3000, 900, 300);
  // No whole pixel, so that rounding can't lead there.
  other.place(4507, 4500, 600, 450);
  QTest::mouseClick(&canvas(), Qt::LeftButton, {}, middle(label));
  QTest::qWait(1);
  const QRect outline = static_cast<CanvasWidget&>(canvas()).outline();
  const QPointF from = handleRect(Handle::Right, outline, canvas().rect()).center();
  press(canvas(), from);
  move(canvas(), from + QPointF(37, 0));
  EXPECT_EQ(label.width(), 900 + 37 * 15);
  move(canvas(), from + QPointF(37, 0), Qt::LeftButton, Qt::ControlModifier);
  EXPECT_EQ(label.left() + label.width(), 4507) << "the neighbour's left";
  EXPECT_EQ(label.height(), 300);
  const QImage shown = canvas().grab().toImage();
  EXPECT_EQ(shown.pixelColor(4507 / 15, 4000 / 15), QColor(0xff, 0x2d, 0x9b))
      << "the line on which they agree";
  release(canvas(), from + QPointF(37, 0));
  EXPECT_EQ(label.left() + label.width(), 4507);
}

TEST_F(View, AGuideComesFromARulerAndGoesOffTheView) {
  EXPECT_EQ(Ruler::stepAt(Zoom(100)), 50);
  EXPECT_EQ(Ruler::stepAt(Zoom(10)), 500);
  EXPECT_EQ(Ruler::stepAt(Zoom(800)), 10);
  const QList<Ruler*> rulers = view().findChildren<Ruler*>();
  ASSERT_EQ(rulers.size(), 2);
  Ruler& across = *rulers[0];
  const QPoint target = view().origin() + QPoint(120, 80);
  press(across, QPointF(target.x(), 5));
  move(across, target + QPoint(0, Ruler::kThickness));
  EXPECT_EQ(view().guides()[1], QList<int>{80});
  press(*rulers[1], QPointF(5, view().origin().y() + 81));
  move(*rulers[1], QPointF(5, view().origin().y() + 90));
  EXPECT_EQ(view().guides()[1], QList<int>{89 + 1});
  move(*rulers[1], QPointF(5, -30));
  EXPECT_TRUE(view().guides()[1].isEmpty());
}

}  // namespace
}  // namespace veneerer
