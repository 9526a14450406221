#include "ui/canvasview.h"

#include <QCoreApplication>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

#include "ui/edgehandle.h"
#include "ui/panning.h"
#include "ui/rulers.h"

namespace veneerer {

namespace {

// The room around the canvas, for its handles; pixels.
constexpr int kMargin = 12;

// Pixels that one notch of the wheel, or an arrow of a bar, moves the view.
constexpr int kLineStep = 24;

constexpr int kWheelNotch = 120;  // eighths of a degree

/// Where the canvas's corner may stand on one axis, pixels of the viewport.
struct Slide {
  int low;
  int high;
};

// The place that is asked for counts, also where no bar could have led there: zooming keeps the point under
// the pointer.
Slide slideFor(int wanted, int shown, int room) {
  const int low = room - kMargin - shown;
  if (low >= kMargin) return {wanted, wanted};
  return {std::min(low, wanted), std::max(kMargin, wanted)};
}

/// The place that is asked for, but never one that takes the canvas out of sight.
int keptInSight(int wanted, int shown, int room) {
  constexpr int kKept = 48;
  const int low = kKept - shown;
  return std::clamp(wanted, low, std::max(low, room - kKept));
}

}  // namespace

CanvasView::CanvasView(const Ui& ui) : skin_(*ui.hands.state().form4.Combo3), canvas_(new CanvasWidget(ui)) {
  setObjectName(QStringLiteral("view"));
  setFrameShape(QFrame::NoFrame);
  viewport()->setBackgroundRole(QPalette::Dark);
  canvas_->setParent(viewport());
  setFocusProxy(canvas_);
  canvas_->installEventFilter(this);
  for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()}) bar->setSingleStep(kLineStep);
  for (const Axis axis : {Axis::X, Axis::Y}) rulers_.append(new Ruler(axis, *this));
  for (const Handle handle : kHandles) addHandle(new EdgeHandle(handle, ui.hands, *this));
  connect(new Panning(*canvas_, *viewport()), &Panning::panned, this, &CanvasView::pan);
  connect(canvas_, &CanvasWidget::resized, this, &CanvasView::canvasResized);
  connect(canvas_, &CanvasWidget::outlineMoved, this, &CanvasView::moveRulers);
  new Watch(skin_, this, [this] { skinChosen(); });
  showRulers(true);
}

// While one is held the canvas stays where it is, so that the edge follows the pointer.
void CanvasView::addHandle(EdgeHandle* handle) {
  handles_.append(handle);
  connect(handle, &EdgeHandle::taken, this, [this] {
    fits_ = false;
    isSized_ = true;
  });
  connect(handle, &EdgeHandle::released, this, [this] {
    isSized_ = false;
    layOut(origin());
  });
}

void CanvasView::pan(QPoint way) {
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() - way.x());
  verticalScrollBar()->setValue(verticalScrollBar()->value() - way.y());
}

QSize CanvasView::wholeSize() const {
  const QMargins rulers = viewportMargins();
  return canvas_->sizeHint() +
         QSize(2 * kMargin + rulers.left() + rulers.right(), 2 * kMargin + rulers.top() + rulers.bottom());
}

void CanvasView::zoomIn() {
  zoomTo(zoom().nearer());
}

void CanvasView::zoomOut() {
  zoomTo(zoom().farther());
}

void CanvasView::zoomTo(const Zoom& zoom) {
  zoomAt(zoom, QRectF(viewport()->rect()).center());
}

void CanvasView::zoomAt(const Zoom& zoom, QPointF place) {
  const QPointF point = (place - origin()) / this->zoom().factor();
  fits_ = false;
  canvas_->setZoom(zoom);
  layOut((place - point * zoom.factor()).toPoint());
  Q_EMIT zoomed();
}

void CanvasView::fit() {
  fits_ = true;
  refit();
}

void CanvasView::refit() {
  const QSize room = maximumViewportSize() - QSize(2 * kMargin, 2 * kMargin);
  canvas_->setZoom(Zoom::fitting(canvas_->sizeHint(), room));
  layOut(origin());
  Q_EMIT zoomed();
}

void CanvasView::canvasResized() {
  if (fits_) return refit();
  canvas_->setZoom(zoom());
  layOut(origin());
}

// The list hears of more than another choice.
void CanvasView::skinChosen() {
  if (std::exchange(skinName_, skin_.text()) != skin_.text()) fit();
}

void CanvasView::showRulers(bool shown) {
  areRulersShown_ = shown;
  const int width = shown ? Ruler::kThickness : 0;
  setViewportMargins(width, width, 0, 0);
  for (Ruler* ruler : rulers_) ruler->setVisible(shown);
  if (fits_) refit();
}

void CanvasView::setGuides(const Guides& guides) {
  guides_ = guides;
  canvas_->setGuides(guides);
  moveRulers();
}

// A bar that comes or goes changes the viewport's size, which is a layout of its own: then that one counts.
void CanvasView::layOut(QPoint wanted) {
  const int mine = ++layouts_;
  const QSize shown = canvas_->size();
  const QSize whole = shown + QSize(2 * kMargin, 2 * kMargin);
  const QSize most = maximumViewportSize();
  const bool isSeen = whole.width() <= most.width() && whole.height() <= most.height();
  const QSize room = isSeen ? most : viewport()->size();
  if (!isSized_ && whole.width() <= room.width()) wanted.setX((room.width() - shown.width()) / 2);
  if (!isSized_ && whole.height() <= room.height()) wanted.setY((room.height() - shown.height()) / 2);
  if (!isSized_)
    wanted = QPoint(keptInSight(wanted.x(), shown.width(), room.width()),
                    keptInSight(wanted.y(), shown.height(), room.height()));
  const Slide across = slideFor(wanted.x(), shown.width(), room.width());
  const Slide down = slideFor(wanted.y(), shown.height(), room.height());
  const bool wasLayingOut = std::exchange(isLayingOut_, true);
  canvas_->move(wanted);
  highest_ = QPoint(across.high, down.high);
  const auto slide = [&](QScrollBar& bar, int length, int value) {
    if (layouts_ == mine) bar.setRange(0, length);
    if (layouts_ == mine) bar.setValue(value);
  };
  horizontalScrollBar()->setPageStep(room.width());
  verticalScrollBar()->setPageStep(room.height());
  slide(*horizontalScrollBar(), across.high - across.low, across.high - wanted.x());
  slide(*verticalScrollBar(), down.high - down.low, down.high - wanted.y());
  isLayingOut_ = wasLayingOut;
  if (layouts_ == mine) moveAlong();
}

void CanvasView::moveCanvas() {
  canvas_->move(highest_ - QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value()));
  moveAlong();
}

void CanvasView::moveAlong() {
  moveHandles();
  moveRulers();
}

// Along the part of the edge that is in sight.
void CanvasView::moveHandles() {
  constexpr int kLong = 40;
  constexpr int kWide = 10;
  const QRect canvas = canvas_->geometry();
  const QPoint middle = (canvas & viewport()->rect()).center();
  for (EdgeHandle* edge : handles_) {
    const bool across = changesWidth(edge->handle());
    const bool down = changesHeight(edge->handle());
    const QSize size(across ? kWide : kLong, down ? kWide : kLong);
    edge->setGeometry(QRect(QPoint(across ? canvas.right() + 1 : middle.x() - kLong / 2,
                                   down ? canvas.bottom() + 1 : middle.y() - kLong / 2),
                            size));
    edge->raise();
  }
}

void CanvasView::moveRulers() {
  const QRect view = viewport()->geometry();
  const int thickness = Ruler::kThickness;
  rulers_[0]->setGeometry(view.left(), view.top() - thickness, view.width(), thickness);
  rulers_[1]->setGeometry(view.left() - thickness, view.top(), thickness, view.height());
  for (Ruler* ruler : rulers_) ruler->update();
}

// Whoever came by the keys is told where they go; with the mouse that is plain.
void CanvasView::showFocus(const QFocusEvent& event) {
  isReachedByKeys_ =
      event.gotFocus() && (event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason ||
                           event.reason() == Qt::ShortcutFocusReason);
  viewport()->update();
}

void CanvasView::paintEvent(QPaintEvent*) {
  if (!isReachedByKeys_) return;
  constexpr int kWidth = 2;
  QPainter painter(viewport());
  painter.setPen(QPen(palette().color(QPalette::Highlight), kWidth));
  painter.drawRect(canvas_->geometry().adjusted(-2 * kWidth, -2 * kWidth, 2 * kWidth, 2 * kWidth));
}

bool CanvasView::eventFilter(QObject* watched, QEvent* event) {
  if (watched != canvas_) return QAbstractScrollArea::eventFilter(watched, event);
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
    showFocus(*static_cast<QFocusEvent*>(event));
  if (event->type() == QEvent::MouseMove)
    for (Ruler* ruler : rulers_) ruler->setPointer(static_cast<QMouseEvent*>(event)->position());
  if (event->type() == QEvent::Leave)
    for (Ruler* ruler : rulers_) ruler->setPointer(std::nullopt);
  return false;
}

void CanvasView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  if (fits_)
    refit();
  else
    layOut(origin());
}

void CanvasView::scrollContentsBy(int, int) {
  if (!isLayingOut_) moveCanvas();
}

void CanvasView::wheelEvent(QWheelEvent* event) {
  if (event->modifiers() & Qt::ControlModifier) {
    wheel_ += event->angleDelta().y();
    Zoom next = zoom();
    for (; wheel_ >= kWheelNotch; wheel_ -= kWheelNotch) next = next.nearer();
    for (; wheel_ <= -kWheelNotch; wheel_ += kWheelNotch) next = next.farther();
    if (next != zoom()) zoomAt(next, event->position());
    return event->accept();
  }
  if (event->modifiers() & Qt::ShiftModifier)
    QCoreApplication::sendEvent(horizontalScrollBar(), event);
  else
    QAbstractScrollArea::wheelEvent(event);
}

}  // namespace veneerer
