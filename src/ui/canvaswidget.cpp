#include "ui/canvaswidget.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <optional>

#include "canvas/screens.h"
#include "canvas/sections.h"
#include "painting/canvassize.h"
#include "ui/badge.h"
#include "ui/canvasaccess.h"
#include "ui/diskfollower.h"
#include "ui/overlayhand.h"
#include "ui/picturedrop.h"

namespace veneerer {

namespace {

// An outline may lie so far outside of what is shown, pixels.
constexpr int kOutlineReach = 2;

// How near a line must be to snap to it, pixels of the view.
constexpr double kSnapReach = 6;

// How far an arrow key moves, canvas pixels.
constexpr int kNudge = 1;
constexpr int kLongNudge = 10;

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

std::optional<QPoint> directionOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return QPoint(-1, 0);
    case Qt::Key_Right:
      return QPoint(1, 0);
    case Qt::Key_Up:
      return QPoint(0, -1);
    case Qt::Key_Down:
      return QPoint(0, 1);
    default:
      return std::nullopt;
  }
}

}  // namespace

CanvasWidget::CanvasWidget(const Ui& ui)
    : hands_(ui.hands),
      disk_(ui.disk),
      state_(ui.hands.state()),
      scale_(1 / ui.hands.screen().twipsPerPixelX(), 1 / ui.hands.screen().twipsPerPixelY()),
      surface_(*this, state_.form1, scale_),
      watching_(state_.board.watch([this](const Change& change) { changed(change); })),
      hits_(surface_.painter().cutOuts(), {scale_.pixelsPerTwipX(), scale_.pixelsPerTwipY()}),
      dirty_(scale_.pixelsPerTwipX(), scale_.pixelsPerTwipY()),
      frames_(state_.form1, [this](const Element& frame) { repaintElement(frame); }),
      sizing_(ui.hands) {
  surface_.painter().setFrameSource([this](const Element& frame) { return frames_.frame(frame); });
  setObjectName(QStringLiteral("canvas"));
  // Ahead of the name, which assistive tools hear of at once.
  exposeCanvases();
  setAccessibleName(tr("Canvas"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  connect(&hands_, &Operator::acted, this, &CanvasWidget::scheduleRepaint);
  connect(&hands_, &Operator::selected, this, &CanvasWidget::scheduleRepaint);
  connect(&hands_, &Operator::selected, this, [this] { tellSelected(*this); });
  new OverlayHand(hands_, *this);
  connect(&ui.pictures, &PictureFetcher::fetched, this, &CanvasWidget::pictureFetched);
  connect(&disk_, &DiskFollower::missingChanged, this, &CanvasWidget::scheduleRepaint);
  // Where nothing stands, the backdrop of all screens is.
  takePictures(*this, hands_, [this](QPointF place) {
    Element* element = elementAt(place);
    return element ? element : &state_.form1;
  });
}

QSize CanvasWidget::sizeHint() const {
  return canvasSize(state_.form1, hands_.screen()).pixels;
}

void CanvasWidget::setZoom(const Zoom& zoom) {
  const Zoom before = scale_.zoom();
  // A still would show the mock-up twice.
  if (zoom != before && dirty_.isEmpty() && mockUp_.picture.isNull()) surface_.keepStill();
  scale_.setZoom(zoom);
  resize(zoom.shown(sizeHint()));
  if (zoom == before) return;
  dirty_ = DirtyArea(scale_.pixelsPerTwipX() * zoom.factor(), scale_.pixelsPerTwipY() * zoom.factor());
  dirty_.addAll();
  surface_.zoomed();
  scheduleRepaint();
}

void CanvasWidget::setGrid(QSizeF step) {
  grid_ = step;
  update();
}

void CanvasWidget::setGuides(const Guides& guides) {
  guides_ = guides;
  update();
}

void CanvasWidget::setDress(const Dress& dress) {
  surface_.painter().setDress(dress);
  surface_.changed();
  dirty_.addAll();
  scheduleRepaint();
}

void CanvasWidget::setMockUp(const MockUp& mockUp) {
  mockUp_ = mockUp;
  update();
}

void CanvasWidget::setBand(const QRect& band) {
  band_ = band;
  scheduleRepaint();
}

QRect CanvasWidget::placeOf(const Element& element) const {
  return dirty_.pixelsOf(windowRect(element)).adjusted(1, 1, -1, -1);
}

void CanvasWidget::changed(const Change& change) {
  if (&change.element.window() != &state_.form1) return;
  surface_.changed();
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
  const CanvasMarks before = std::exchange(marks_, marks());
  if (before != marks_) region = region + before.region() + marks_.region();
  if (!region.isEmpty()) update(region);
  if (before.outline != marks_.outline) Q_EMIT outlineMoved();
  if (pointed_) Q_EMIT pointed(isShown(*pointed_) ? pointed_ : nullptr);
}

void CanvasWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const QRegion left = surface_.paint(painter, event->region());
  // What wasn't painted anew shows it already.
  if (!mockUp_.picture.isNull()) mockUp_.paint(painter, event->region() - left, zoom());
  paintOverlay(painter, event->region().boundingRect());
}

const Element* CanvasWidget::outlined() const {
  return grabbed_ ? grabbed_ : currentElement(state_);
}

QRect CanvasWidget::outlineOf(const Element* element) const {
  if (!element || &element->window() != &state_.form1 || !isShown(*element)) return QRect();
  // Only what can be in sight: a dashed line around an absurd size would take for ever.
  return dirty_.pixelsOf(windowRect(*element)) & reach(rect());
}

// A hidden element is outlined as long as its screen is shown.
QList<QRect> CanvasWidget::selectedOutlines() const {
  QList<QRect> outlines;
  for (const Element* element : hands_.overlay().elements()) {
    if (isOnShownScreen(state_, *element))
      outlines.append(dirty_.pixelsOf(windowRect(*element)) & reach(rect()));
  }
  return outlines;
}

template <class Elements>
QList<QRect> CanvasWidget::badges(const Elements& of, QRect (*place)(const QRect&)) const {
  QList<QRect> badges;
  for (const Element* element : of)
    if (&element->window() == &state_.form1 && element->family() && isShown(*element))
      badges.append(place(placeOf(*element)));
  // A set has no order, and marks are compared.
  std::ranges::sort(badges, {}, [](const QRect& badge) { return std::pair(badge.y(), badge.x()); });
  return badges;
}

CanvasMarks CanvasWidget::marks() const {
  CanvasMarks made;
  made.badges = badges(disk_.missing(), badgeRect);
  made.locks = badges(hands_.overlay().locked(), lockRect);
  made.selected = selectedOutlines();
  made.band = band_;
  const Element* element = outlined();
  made.outline = outlineOf(element);
  const bool canBeTaken = pointed_ && !hands_.overlay().isLocked(*pointed_);
  if (canBeTaken && pointed_ != element && !grabbed_) made.hover = outlineOf(pointed_);
  if (!grabbed_ && sizable() && !made.outline.isNull())
    for (const Handle handle : kHandles) made.handles.append(handleRect(handle, made.outline, rect()));
  const bool isChanging = isDragged_ || sizing_.isOn();
  if (isChanging && !made.outline.isNull())
    addAlignment(made, *element, surroundingsOf(*element, guides_, scale_), scale_, rect());
  return made;
}

QColor CanvasWidget::colourAt(QPoint place) {
  QImage pixel(1, 1, QImage::Format_RGB32);
  QPainter painter(&pixel);
  painter.translate(-place);
  surface_.painter().setHovered(nullptr);
  surface_.paint(painter, QRect(place, QSize(1, 1)));
  surface_.painter().setHovered(pointed_);
  return pixel.pixelColor(0, 0);
}

void CanvasWidget::paintOverlay(QPainter& painter, const QRect& exposed) const {
  paintGrid(painter, exposed, grid_, zoom());
  paintGuides(painter, exposed, guides_, zoom());
  marks_.paint(painter);
}

// The element in hand when its size can be set.
Element* CanvasWidget::sizable() const {
  Element* element = currentElement(state_, ToolField::Size);
  const bool isSeen = element && &element->window() == &state_.form1 && isShown(*element);
  return isSeen && !hands_.overlay().isLocked(*element) ? element : nullptr;
}

Handle CanvasWidget::handleUnder(QPointF place) const {
  return sizable() ? handleAt(place.toPoint(), outlineOf(sizable()), rect()) : Handle::None;
}

void CanvasWidget::mousePressEvent(QMouseEvent* event) {
  const MouseButton button = buttonOf(*event);
  const Handle handle = button == MouseButton::Left ? handleUnder(event->position()) : Handle::None;
  if (handle != Handle::None) return sizing_.begin(handle, *sizable(), scale_.twipsAt(event->position()));
  Element* element = elementAt(event->position());
  if (element && button == MouseButton::Left && hands_.overlay().isLocked(*element)) return;
  if (!element && button == MouseButton::Left) hands_.overlay().clear();
  if (!element || button == MouseButton::None) return;
  const QPointF place = inside(*element, event->position());
  if (button == MouseButton::Left) hold(element);
  hands_.press(*element, static_cast<float>(place.x()), static_cast<float>(place.y()), button);
}

void CanvasWidget::mouseMoveEvent(QMouseEvent* event) {
  const bool isHeld = event->buttons() & Qt::LeftButton;
  const bool snaps = event->modifiers() & Qt::ControlModifier;
  if (sizing_.isOn() && isHeld) return sizeTo(event->position(), snaps);
  if (!grabbed_ || !isHeld) return pointAt(event->position());
  drag(inside(*grabbed_, event->position()), snaps);
}

void CanvasWidget::sizeTo(QPointF place, bool snaps) {
  std::optional<SizeSnap> snap;
  if (const Element* element = sizable(); element && snaps)
    snap = SizeSnap{surroundingsOf(*element, guides_, scale_), scale_.twipsIn(kSnapReach)};
  sizing_.move(scale_.twipsAt(place), snap);
}

void CanvasWidget::drag(QPointF place, bool snaps) {
  const QPointF anchor(state_.globals.DragAnchorX, state_.globals.DragAnchorY);
  isDragged_ = isDragged_ || (place - anchor).manhattanLength() >= 1;
  if (snaps)
    place = snapped(*grabbed_, place, anchor, surroundingsOf(*grabbed_, guides_, scale_),
                    scale_.twipsIn(kSnapReach));
  hands_.move(*grabbed_, static_cast<float>(place.x()), static_cast<float>(place.y()), MouseButton::Left);
}

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (sizing_.isOn()) return endSizing();
  if (!grabbed_) return;
  Element* element = grabbed_;
  hold(nullptr);
  scheduleRepaint();
  if (windowRect(*element).contains(scale_.twipsAt(event->position()))) hands_.click(*element);
  hands_.release();
}

void CanvasWidget::endSizing() {
  sizing_.end();
  scheduleRepaint();
}

// As far as it is in sight.
std::vector<Element*> CanvasWidget::nudged() const {
  std::vector<Element*> elements = hands_.overlay().elements();
  Element* inHand = currentElement(state_);
  if (elements.empty() && !outlineOf(inHand).isNull()) elements.push_back(inHand);
  std::erase_if(elements, [this](const Element* element) { return hands_.overlay().isLocked(*element); });
  return elements;
}

void CanvasWidget::keyPressEvent(QKeyEvent* event) {
  const std::optional<QPoint> direction = directionOf(event->key());
  const Qt::KeyboardModifiers held = event->modifiers() & ~Qt::KeypadModifier;
  const bool isNudge = direction && (held == Qt::NoModifier || held == Qt::ShiftModifier) && !grabbed_;
  const std::vector<Element*> elements = isNudge ? nudged() : std::vector<Element*>();
  if (elements.empty()) return QWidget::keyPressEvent(event);
  const QPoint way = *direction * (held == Qt::ShiftModifier ? kLongNudge : kNudge);
  hands_.nudge(elements, way.x(), way.y());
}

// A key that is held down is one gesture.
void CanvasWidget::keyReleaseEvent(QKeyEvent* event) {
  if (!directionOf(event->key())) return QWidget::keyReleaseEvent(event);
  if (!event->isAutoRepeat() && !grabbed_) hands_.release();
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
  const Element* element = elementAt(place);
  if (!element || element->toolTipText().isEmpty()) return QToolTip::hideText();
  QToolTip::showText(global, plainToolTip(element->toolTipText()), this,
                     dirty_.pixelsOf(windowRect(*element)) & rect());
}

void CanvasWidget::hold(Element* element) {
  const Element* before = std::exchange(grabbed_, element);
  isDragged_ = false;
  surface_.painter().setPressed(element);
  for (const Element* e : {before, static_cast<const Element*>(element)})
    if (e && e->kind() == Kind::Button) repaintElement(*e);
}

void CanvasWidget::pointAt(QPointF place) {
  const Handle handle = handleUnder(place);
  setCursor(cursorOf(handle));
  point(handle == Handle::None ? elementAt(place) : nullptr);
}

void CanvasWidget::point(Element* element) {
  Element* before = std::exchange(pointed_, element);
  if (before == element) return;
  surface_.painter().setHovered(element);
  for (const Element* e : {before, element})
    if (e && e->kind() == Kind::Button) repaintElement(*e);
  scheduleRepaint();
  Q_EMIT pointed(element);
}

void CanvasWidget::repaintElement(const Element& element) {
  dirty_.add(dirty_.pixelsOf(windowRect(element)));
  scheduleRepaint();
}

QPointF CanvasWidget::inside(const Element& element, QPointF place) const {
  return scale_.twipsAt(place) - windowRect(element).topLeft();
}

Element* CanvasWidget::elementAt(QPointF place) const {
  const QPointF twips = scale_.twipsAt(place);
  return hits_.elementAt(state_.form1, static_cast<float>(twips.x()), static_cast<float>(twips.y()));
}

}  // namespace veneerer
