#include "ui/canvaswidget.h"

#include <QBackingStore>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEngine>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>
#include <limits>

#include "canvas/sections.h"
#include "painting/canvassize.h"

namespace veneerer {

namespace {

// How long pieces are painted before the operator's next doing comes in between, milliseconds.
constexpr int kPatience = 40;

// What may be spent on scaling pictures smoothly in one painting, pixels; a tenth of a second at most. The
// others follow by and by, as long as it makes sense.
constexpr qint64 kScalingAllowance = 12LL * 1024 * 1024;
constexpr int kMostRefinements = 12;

// How far around its line the outline is repainted, pixels.
constexpr int kOutlineReach = 2;

MouseButton buttonOf(const QMouseEvent& event) {
  switch (event.button()) {
    case Qt::LeftButton:
      return MouseButton::Left;
    case Qt::RightButton:
      return MouseButton::Right;
    case Qt::MiddleButton:
      return MouseButton::Middle;
    default:
      return MouseButton::None;
  }
}

QRect reach(const QRect& outline) {
  const int r = kOutlineReach;
  return outline.isNull() ? outline : outline.adjusted(-r, -r, r, r);
}

}  // namespace

CanvasWidget::CanvasWidget(const Ui& ui)
    : hands_(ui.hands),
      state_(ui.hands.state()),
      pixelsPerTwipX_(1 / ui.hands.screen().twipsPerPixelX()),
      pixelsPerTwipY_(1 / ui.hands.screen().twipsPerPixelY()),
      watching_(state_.board.watch([this](const Change& change) { changed(change); })),
      hits_(painter_.cutOuts(), {pixelsPerTwipX_, pixelsPerTwipY_}),
      dirty_(pixelsPerTwipX_, pixelsPerTwipY_),
      frames_(state_.form1, [this](const Element& frame) { repaintElement(frame); }) {
  painter_.setFrameSource([this](const Element& frame) { return frames_.frame(frame); });
  refining_.setSingleShot(true);
  refining_.setInterval(kPatience);
  refining_.callOnTimeout(this, &CanvasWidget::refine);
  setObjectName(QStringLiteral("canvas"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::ClickFocus);
  connect(&hands_, &Operator::acted, this, &CanvasWidget::scheduleRepaint);
  connect(&ui.pictures, &PictureFetcher::fetched, this, &CanvasWidget::pictureFetched);
}

QSize CanvasWidget::sizeHint() const {
  return canvasSize(state_.form1, hands_.screen()).pixels;
}

void CanvasWidget::changed(const Change& change) {
  if (&change.element.window() != &state_.form1) return;
  refinements_ = 0;
  pieces_.begin();
  if (!change.element.family()) return windowChanged(change.property);
  dirty_.add(change);
  scheduleRepaint();
}

void CanvasWidget::windowChanged(Property property) {
  dirty_.addAll();
  scheduleRepaint();
  if (property == Property::Width || property == Property::Height) Q_EMIT resized();
}

void CanvasWidget::pictureFetched(const Picture& picture) {
  const auto shows = [&](const Element& element) {
    return element.has(Property::Picture) && element.as<Picture>(Property::Picture) == picture;
  };
  if (shows(state_.form1)) dirty_.addAll();
  for (const Family* family : state_.form1.families())
    for (const Element* element : family->members())
      if (shows(*element) && isShown(*element)) dirty_.add(dirty_.pixelsOf(windowRect(*element)));
  scheduleRepaint();
}

void CanvasWidget::scheduleRepaint() {
  if (std::exchange(repaintScheduled_, true)) return;
  QMetaObject::invokeMethod(this, &CanvasWidget::repaintDirty, Qt::QueuedConnection);
}

void CanvasWidget::repaintDirty() {
  repaintScheduled_ = false;
  QRegion region = dirty_.take();
  const QRect outline = outlineRect();
  if (outline != outline_) region = region + reach(outline_) + reach(outline);
  outline_ = outline;
  if (!region.isEmpty()) update(region);
  if (pointed_) Q_EMIT pointed(isShown(*pointed_) ? pointed_ : nullptr);
}

// A picture of the window is painted whole, and what is on the screen in pieces.
void CanvasWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  if (isOnScreen(painter)) {
    const QRegion left = paintPieces(painter, event->region());
    if (!left.isEmpty()) update(left);
  } else {
    painter_.setScalingAllowance(std::numeric_limits<qint64>::max());
    for (const QRect& exposed : event->region()) paintPiece(painter, exposed);
  }
  paintOutline(painter);
}

bool CanvasWidget::isOnScreen(const QPainter& painter) const {
  const QBackingStore* screen = backingStore();
  return screen && painter.paintEngine()->paintDevice() == const_cast<QBackingStore*>(screen)->paintDevice();
}

// Returns what there was no time for.
QRegion CanvasWidget::paintPieces(QPainter& painter, const QRegion& region) {
  painter_.setScalingAllowance(kScalingAllowance);
  QRegion left = region;
  QElapsedTimer all;
  all.start();
  while (!left.isEmpty() && !all.hasExpired(kPatience)) {
    const QRect piece = pieces_.take(left);
    QElapsedTimer one;
    one.start();
    paintPiece(painter, piece);
    pieces_.took(piece.size(), double(one.nsecsElapsed()) / 1e6);
  }
  if (painter_.isCoarse() && refinements_ < kMostRefinements) {
    coarse_ += region - left;
    refining_.start();
  }
  return left;
}

void CanvasWidget::paintPiece(QPainter& painter, const QRect& piece) {
  painter_.paint(painter, state_.form1, piece, pixelsPerTwipX_, pixelsPerTwipY_);
}

void CanvasWidget::refine() {
  ++refinements_;
  update(std::exchange(coarse_, QRegion()));
}

const Element* CanvasWidget::outlined() const {
  return grabbed_ ? grabbed_ : currentElement(state_);
}

QRect CanvasWidget::outlineRect() const {
  const Element* element = outlined();
  if (!element || &element->window() != &state_.form1 || !isShown(*element)) return QRect();
  // Only what can be in sight: a dashed line around an absurd size would take for ever.
  return dirty_.pixelsOf(windowRect(*element)) & reach(rect());
}

void CanvasWidget::paintOutline(QPainter& painter) const {
  if (outline_.isNull()) return;
  // Black and white side by side show on any Skin.
  const QRect line = outline_.adjusted(0, 0, -1, -1);
  painter.setPen(QPen(Qt::black, 1));
  painter.drawRect(line);
  QPen dashes(Qt::white, 1);
  dashes.setDashPattern({4, 4});
  painter.setPen(dashes);
  painter.drawRect(line);
}

void CanvasWidget::mousePressEvent(QMouseEvent* event) {
  Element* element = at(event->position());
  const MouseButton button = buttonOf(*event);
  if (!element || button == MouseButton::None) return;
  const QPointF place = inside(*element, event->position());
  if (button == MouseButton::Left) hold(element);
  hands_.press(*element, static_cast<float>(place.x()), static_cast<float>(place.y()), button);
}

void CanvasWidget::mouseMoveEvent(QMouseEvent* event) {
  if (!grabbed_ || !(event->buttons() & Qt::LeftButton)) return point(at(event->position()));
  const QPointF place = inside(*grabbed_, event->position());
  hands_.move(*grabbed_, static_cast<float>(place.x()), static_cast<float>(place.y()), MouseButton::Left);
}

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !grabbed_) return;
  Element* element = grabbed_;
  hold(nullptr);
  scheduleRepaint();
  if (windowRect(*element).contains(toTwips(event->position()))) hands_.click(*element);
  hands_.release();
}

void CanvasWidget::leaveEvent(QEvent*) {
  point(nullptr);
}

bool CanvasWidget::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  showToolTip(help->globalPos(), help->pos());
  return true;
}

void CanvasWidget::showToolTip(const QPoint& global, const QPoint& place) {
  const Element* element = at(place);
  if (!element || element->toolTipText().isEmpty()) return QToolTip::hideText();
  QToolTip::showText(global, plainToolTip(element->toolTipText()), this,
                     dirty_.pixelsOf(windowRect(*element)) & rect());
}

void CanvasWidget::hold(Element* element) {
  const Element* before = std::exchange(grabbed_, element);
  painter_.setPressed(element);
  for (const Element* e : {before, static_cast<const Element*>(element)})
    if (e && e->kind() == Kind::Button) repaintElement(*e);
}

void CanvasWidget::point(Element* element) {
  Element* before = std::exchange(pointed_, element);
  if (before == element) return;
  painter_.setHovered(element);
  for (const Element* e : {before, element})
    if (e && e->kind() == Kind::Button) repaintElement(*e);
  Q_EMIT pointed(element);
}

void CanvasWidget::repaintElement(const Element& element) {
  dirty_.add(dirty_.pixelsOf(windowRect(element)));
  scheduleRepaint();
}

QPointF CanvasWidget::toTwips(QPointF pixels) const {
  return QPointF(pixels.x() / pixelsPerTwipX_, pixels.y() / pixelsPerTwipY_);
}

QPointF CanvasWidget::inside(const Element& element, QPointF pixels) const {
  return toTwips(pixels) - windowRect(element).topLeft();
}

Element* CanvasWidget::at(QPointF pixels) const {
  const QPointF twips = toTwips(pixels);
  return hits_.elementAt(state_.form1, static_cast<float>(twips.x()), static_cast<float>(twips.y()));
}

}  // namespace veneerer
