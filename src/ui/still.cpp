#include "ui/still.h"

#include <QBackingStore>

namespace veneerer {

void Still::take(const QWidget& widget, const Zoom& zoom) {
  drop();
  const QRect sight = widget.visibleRegion().boundingRect();
  QBackingStore* store = widget.backingStore();
  // Ahead of the first painting there is no picture yet, and on a scaled desktop asking for it is fatal.
  if (!store || store->size().isEmpty() || sight.isEmpty()) return;
  const auto* screen = dynamic_cast<const QImage*>(store->paintDevice());
  if (!screen || screen->isNull()) return;
  const double device = widget.devicePixelRatio();
  const QPoint corner = widget.mapTo(widget.window(), sight.topLeft());
  const QRect part(QPointF(QPointF(corner) * device).toPoint(), (QSizeF(sight.size()) * device).toSize());
  image_ = screen->copy(part & screen->rect());
  image_.setDevicePixelRatio(1);
  place_ = QRectF(QPointF(sight.topLeft()) / zoom.factor(), QSizeF(sight.size()) / zoom.factor());
}

void Still::paint(QPainter& painter, const QRect& exposed, const Zoom& zoom, const QColor& ground) const {
  const QRectF target(place_.topLeft() * zoom.factor(), place_.size() * zoom.factor());
  const QRectF shown = target & exposed;
  const QRect covered = shown.toAlignedRect();
  for (const QRect& rest : QRegion(exposed) - covered) painter.fillRect(rest, ground);
  if (shown.isEmpty()) return;
  const double scale = image_.width() / target.width();
  painter.drawImage(shown, image_,
                    QRectF((shown.topLeft() - target.topLeft()) * scale, shown.size() * scale));
}

}  // namespace veneerer
