// How large the canvas is shown. A matter of the view alone: the canvas window's twips never change by it.
#pragma once

#include <QPointF>
#include <QRect>

namespace veneerer {

/// One canvas pixel is so many percent of a device-independent pixel of the view.
class Zoom {
public:
  static constexpr int kLeast = 10;
  static constexpr int kMost = 800;

  /// Kept within the bounds.
  explicit Zoom(int percent = 100);
  /// The largest one at which the canvas is wholly seen in that room, but never above 100 %.
  static Zoom fitting(QSize canvas, QSize room);

  int percent() const { return percent_; }
  double factor() const { return percent_ / 100.0; }
  /// The next step of a fixed list; the same one at its end.
  Zoom nearer() const;
  Zoom farther() const;

  /// What is shown of so many canvas pixels; a begun pixel of the view counts.
  QSize shown(QSize canvas) const;
  /// The whole canvas pixel that lies under a place of the view.
  QPoint canvasPixel(QPointF shown) const;
  /// The canvas pixels that a rectangle of the view touches.
  QRect canvasPixels(const QRect& shown) const;

  bool operator==(const Zoom&) const = default;

private:
  int percent_;
};

/// Twips and the view's device-independent pixels.
class CanvasScale {
public:
  CanvasScale(double pixelsPerTwipX, double pixelsPerTwipY) : x_(pixelsPerTwipX), y_(pixelsPerTwipY) {}

  const Zoom& zoom() const { return zoom_; }
  void setZoom(const Zoom& zoom) { zoom_ = zoom; }

  /// Canvas pixels per twip, whatever the zoom is.
  double pixelsPerTwipX() const { return x_; }
  double pixelsPerTwipY() const { return y_; }

  /// A place of the view in twips of the canvas window. It is rounded down to whole canvas pixels first, so
  /// that what is done at any zoom could have been done at 100 %.
  QPointF twipsAt(QPointF shown) const;
  /// The place at which a point in twips is shown.
  QPointF shownAt(QPointF twips) const;
  /// So many pixels of the view in twips, across.
  double twipsIn(double shown) const { return shown / (x_ * zoom_.factor()); }

private:
  double x_;
  double y_;
  Zoom zoom_;
};

}  // namespace veneerer
