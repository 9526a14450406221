// How the canvas gets onto its widget: in pieces, pictures first coarse and then fine, and while the operator
// zooms as a still.
#pragma once

#include <QTimer>
#include <QWidget>

#include "painting/canvaspainter.h"
#include "ui/paintpieces.h"
#include "ui/still.h"
#include "ui/zoom.h"

namespace veneerer {

class CanvasSurface {
public:
  /// All must outlive the surface.
  CanvasSurface(QWidget& widget, const Form1& form, const CanvasScale& scale);

  CanvasPainter& painter() { return painter_; }

  /// Paints that part of the widget and returns what is left of it: a picture of the window is painted whole;
  /// what there is no time for on the screen waits for the next painting.
  QRegion paint(QPainter& painter, const QRegion& region);

  /// The canvas shows something else now.
  void changed();
  /// The scale is about to change: what is on the screen, if that is up to date, stands in until it rests.
  void keepStill();
  /// The scale has changed.
  void zoomed();

private:
  bool isOnScreen(const QPainter& painter) const;
  QRegion paintPieces(QPainter& painter, const QRegion& region);
  void paintPiece(QPainter& painter, const QRect& piece);
  void refine();
  void endStill();

  QWidget& widget_;
  const Form1& form_;
  const CanvasScale& scale_;
  CanvasPainter painter_;
  PaintPieces pieces_;
  Still still_;
  QRegion coarse_;  ///< where pictures are yet to be scaled smoothly
  QTimer refining_;
  int refinements_ = 0;  ///< since the last change
};

}  // namespace veneerer
