#include "ui/jukeboxscreen.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "canvas/destinations.h"
#include "canvas/screens.h"
#include "painting/canvassize.h"

namespace veneerer {

namespace {

int percentWithin(int room, int side) {
  return static_cast<int>(static_cast<qint64>(room) * 100 / side);
}

}  // namespace

JukeboxScreen::JukeboxScreen(const Ui& ui, int entry)
    : state_(ui.hands.state()),
      inSight_(ui.pictures.inSight()),
      canvas_(canvasSize(state_.form1, ui.hands.screen()).pixels),
      entry_(entry),
      scale_(1 / ui.hands.screen().twipsPerPixelX(), 1 / ui.hands.screen().twipsPerPixelY()),
      surface_(*this, state_.form1, scale_),
      hits_(surface_.painter().cutOuts(), {scale_.pixelsPerTwipX(), scale_.pixelsPerTwipY()}),
      frames_(state_.form1, [this](const Element& frame) { repaintElement(&frame); }),
      watching_(state_.board.watch([this](const Change& change) {
        if (&change.element.window() == &state_.form1) restage();
      })) {
  setObjectName(QStringLiteral("jukebox"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  surface_.painter().setFrameSource([this](const Element& frame) { return frames_.frame(frame); });
  connect(&ui.pictures, &PictureFetcher::fetched, this, [this] {
    surface_.changed();
    update();
  });
  restage();
}

void JukeboxScreen::goTo(int entry) {
  entry_ = entry;
  restage();
  inSight_.lookAt(stage_);
  Q_EMIT went(entry);
}

void JukeboxScreen::restage() {
  stage_ = stageOf(state_, entry_);
  surface_.painter().setStage(stage_);
  frames_.setStage(stage_);
  setAccessibleName(screenTitle(entry_));
  surface_.changed();
  update();
}

void JukeboxScreen::fitInto(QSize room) {
  const Zoom zoom(
      std::min(percentWithin(room.width(), canvas_.width()), percentWithin(room.height(), canvas_.height())));
  scale_.setZoom(zoom);
  surface_.zoomed();
  resize(zoom.shown(canvas_));
  update();
}

QRect JukeboxScreen::placeOf(const Element& element) const {
  const QRectF twips = windowRect(element);
  return QRectF(scale_.shownAt(twips.topLeft()), scale_.shownAt(twips.bottomRight())).toAlignedRect() &
         rect();
}

void JukeboxScreen::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  surface_.paint(painter, event->region());
}

const Element* JukeboxScreen::elementAt(QPointF place) const {
  const QPointF twips = scale_.twipsAt(place);
  return hits_.elementAt(stage_, static_cast<float>(twips.x()), static_cast<float>(twips.y()));
}

void JukeboxScreen::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) hold(elementAt(event->position()));
}

void JukeboxScreen::mouseMoveEvent(QMouseEvent* event) {
  point(elementAt(event->position()));
}

void JukeboxScreen::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const Element* element = held_;
  hold(nullptr);
  if (!element || elementAt(event->position()) != element) return;
  if (const int entry = destinationOf(state_, *element); entry >= 0) goTo(entry);
  point(elementAt(event->position()));
}

void JukeboxScreen::leaveEvent(QEvent*) {
  point(nullptr);
}

void JukeboxScreen::point(const Element* element) {
  const Element* before = std::exchange(pointed_, element);
  if (before == element) return;
  const bool leads = element && destinationOf(state_, *element) >= 0;
  setCursor(leads ? Qt::PointingHandCursor : Qt::ArrowCursor);
  surface_.painter().setHovered(element);
  for (const Element* e : {before, element}) repaintElement(e);
}

void JukeboxScreen::hold(const Element* element) {
  const Element* before = std::exchange(held_, element);
  surface_.painter().setPressed(element);
  for (const Element* e : {before, element}) repaintElement(e);
}

void JukeboxScreen::repaintElement(const Element* element) {
  if (element) update(placeOf(*element).adjusted(-1, -1, 1, 1));
}

}  // namespace veneerer
