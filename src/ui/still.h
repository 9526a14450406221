// What the canvas looked like, scaled in place of a painting that would take longer.
#pragma once

#include <QImage>
#include <QPainter>
#include <QWidget>

#include "ui/zoom.h"

namespace veneerer {

/// While the operator zooms, every frame would have all pictures and faces made in yet another size. Until
/// the zoom comes to rest the last picture of the screen stands in.
class Still {
public:
  /// Takes what is on the screen of the widget, which shows the canvas at that zoom. Nothing where the screen
  /// doesn't keep it.
  void take(const QWidget& widget, const Zoom& zoom);
  void drop() { image_ = QImage(); }
  bool isNull() const { return image_.isNull(); }

  /// Paints the exposed part at another zoom. What wasn't in sight shows the ground.
  void paint(QPainter& painter, const QRect& exposed, const Zoom& zoom, const QColor& ground) const;

private:
  QImage image_;
  QRectF place_;  ///< canvas pixels
};

}  // namespace veneerer
