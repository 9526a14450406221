// The rulers beside the canvas.
#pragma once

#include <QWidget>
#include <optional>

#include "ui/overlay.h"

namespace veneerer {

class CanvasView;

/// In canvas pixels, with the place of the pointer and of the element in hand. A guide is dragged from a
/// ruler over the canvas; its mark on the other ruler moves it, and takes it away when it is dragged off the
/// view.
class Ruler : public QWidget {
  Q_OBJECT

public:
  static constexpr int kThickness = 20;  ///< pixels

  /// Axis::X for the one above the canvas.
  Ruler(Axis axis, CanvasView& view);

  /// Where the pointer is on the canvas widget; nothing when it isn't there.
  void setPointer(std::optional<QPointF> place);

  /// Canvas pixels from one figure to the next at that zoom: 1, 2 or 5 times a power of ten.
  static int stepAt(const Zoom& zoom);

protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

private:
  int along(QPoint place) const { return axis_ == Axis::X ? place.x() : place.y(); }
  QRect bar(int from, int length, int depth) const;
  void paintOutline(QPainter& painter) const;
  void paintTicks(QPainter& painter) const;
  void paintFigure(QPainter& painter, int place, int figure) const;
  void paintMarks(QPainter& painter) const;

  Axis axis_;
  CanvasView& view_;
  std::optional<int> pointer_;  ///< pixels of the viewport
  Axis moved_ = Axis::X;        ///< of the guide that is dragged
  Guides others_;               ///< all guides but that one
};

}  // namespace veneerer
