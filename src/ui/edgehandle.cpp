#include "ui/edgehandle.h"

#include <QMouseEvent>
#include <algorithm>
#include <cmath>

#include "ui/canvasview.h"

namespace veneerer {

namespace {

// Where the handle is back in its place the size is what it was, whole pixels or not.
float sized(double twips, double way, double twipsPerPixel) {
  if (way == 0) return static_cast<float>(twips);
  return static_cast<float>(std::max(1.0, std::round(twips / twipsPerPixel + way)) * twipsPerPixel);
}

}  // namespace

EdgeHandle::EdgeHandle(Handle handle, Operator& hands, CanvasView& view)
    : QWidget(view.viewport()), handle_(handle), hands_(hands), view_(view) {
  setCursor(cursorOf(handle));
  setToolTip(tr("Drag to size the canvas window"));
  setAccessibleName(tr("Size of the canvas window"));
}

void EdgeHandle::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect all = rect();
  const int across = handle_ == Handle::Right ? 4 : 8;
  const int down = handle_ == Handle::Bottom ? 4 : 8;
  const int width = handle_ == Handle::Bottom ? all.width() : across;
  const int height = handle_ == Handle::Right ? all.height() : down;
  paintHandle(painter, QRect(1, 1, width, height) & all);
}

void EdgeHandle::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  Q_EMIT taken();
  hands_.release();
  const Form1& form = hands_.state().form1;
  from_ = event->globalPosition().toPoint();
  size_ = QSizeF(form.width(), form.height());
}

void EdgeHandle::mouseMoveEvent(QMouseEvent* event) {
  const QPointF way = QPointF(event->globalPosition().toPoint() - from_) / view_.zoom().factor();
  if (!(event->buttons() & Qt::LeftButton)) return;
  const Screen& screen = hands_.screen();
  const double across = changesWidth(handle_) ? way.x() : 0;
  const double down = changesHeight(handle_) ? way.y() : 0;
  hands_.resizeCanvas(sized(size_.width(), across, screen.twipsPerPixelX()),
                      sized(size_.height(), down, screen.twipsPerPixelY()));
}

void EdgeHandle::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  hands_.release();
  Q_EMIT released();
}

}  // namespace veneerer
