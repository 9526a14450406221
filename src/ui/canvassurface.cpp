#include "ui/canvassurface.h"

#include <QBackingStore>
#include <QElapsedTimer>
#include <QPaintEngine>
#include <limits>

#include "elements/colour.h"

namespace veneerer {

namespace {

// How long pieces are painted before the operator's next doing comes in between, milliseconds.
constexpr int kPatience = 40;

// How long the zoom must rest before the canvas is painted anew, milliseconds.
constexpr int kRest = 80;

// What may be spent on scaling pictures smoothly in one painting, pixels; a tenth of a second at most. The
// others follow by and by, as long as it makes sense.
constexpr qint64 kScalingAllowance = 12LL * 1024 * 1024;
constexpr int kMostRefinements = 12;

}  // namespace

CanvasSurface::CanvasSurface(QWidget& widget, const Form1& form, const CanvasScale& scale)
    : widget_(widget), form_(form), scale_(scale) {
  refining_.setSingleShot(true);
  refining_.callOnTimeout([this] { refine(); });
}

QRegion CanvasSurface::paint(QPainter& painter, const QRegion& region) {
  if (!isOnScreen(painter)) {
    painter_.setScalingAllowance(std::numeric_limits<qint64>::max());
    for (const QRect& exposed : region) paintPiece(painter, exposed);
    return {};
  }
  if (!still_.isNull()) {
    still_.paint(painter, region.boundingRect(), scale_.zoom(), form_.backColor().toQColor());
    return {};
  }
  const QRegion left = paintPieces(painter, region);
  if (!left.isEmpty()) widget_.update(left);
  return left;
}

bool CanvasSurface::isOnScreen(const QPainter& painter) const {
  const QBackingStore* screen = widget_.backingStore();
  return screen && painter.paintEngine()->paintDevice() == const_cast<QBackingStore*>(screen)->paintDevice();
}

// Returns what there was no time for.
QRegion CanvasSurface::paintPieces(QPainter& painter, const QRegion& region) {
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
    refining_.start(kPatience);
  }
  return left;
}

// The clip falls on the view's own pixels, so that pieces meet without a seam.
void CanvasSurface::paintPiece(QPainter& painter, const QRect& piece) {
  const Zoom& zoom = scale_.zoom();
  painter.save();
  painter.setClipRect(piece, Qt::IntersectClip);
  painter.scale(zoom.factor(), zoom.factor());
  painter_.paint(painter, form_, zoom.canvasPixels(piece), scale_.pixelsPerTwipX(), scale_.pixelsPerTwipY());
  painter.restore();
}

void CanvasSurface::refine() {
  ++refinements_;
  endStill();
  widget_.update(std::exchange(coarse_, QRegion()));
}

void CanvasSurface::endStill() {
  if (still_.isNull()) return;
  still_.drop();
  widget_.update();
}

void CanvasSurface::changed() {
  endStill();
  pieces_.begin();
  refinements_ = 0;
}

// One that stands in already is better than its own scaled picture.
void CanvasSurface::keepStill() {
  if (still_.isNull()) still_.take(widget_, scale_.zoom());
}

void CanvasSurface::zoomed() {
  coarse_ = QRegion();
  pieces_.begin();
  refinements_ = 0;
  if (!still_.isNull()) refining_.start(kRest);
}

}  // namespace veneerer
