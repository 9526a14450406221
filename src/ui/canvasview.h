// The canvas in its window: zoom, scrolling, rulers, and the handles that give the canvas window its size.
#pragma once

#include <QAbstractScrollArea>

#include "ui/canvaswidget.h"

namespace veneerer {

class EdgeHandle;
class Ruler;

/// Until the operator zooms, the canvas fits: it is wholly seen, at 100 % at most. It fits again when another
/// Skin is chosen. A canvas that is smaller than the view stands in its middle.
class CanvasView : public QAbstractScrollArea {
  Q_OBJECT

public:
  explicit CanvasView(const Ui& ui);

  CanvasWidget& canvas() { return *canvas_; }
  const Zoom& zoom() const { return canvas_->zoom(); }
  /// The size that shows the whole canvas at 100 %.
  QSize wholeSize() const;

  void zoomIn();
  void zoomOut();
  /// The middle of the view keeps its place.
  void zoomTo(const Zoom& zoom);
  void fit();

  void showRulers(bool shown);
  bool areRulersShown() const { return areRulersShown_; }

  /// The place of the canvas's corner, pixels of the viewport.
  QPoint origin() const { return canvas_->pos(); }
  const Guides& guides() const { return guides_; }
  void setGuides(const Guides& guides);

Q_SIGNALS:
  void zoomed();

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent* event) override;

private:
  void zoomAt(const Zoom& zoom, QPointF place);
  void canvasResized();
  void skinChosen();
  void addHandle(EdgeHandle* handle);
  void pan(QPoint way);
  void refit();
  void showFocus(const QFocusEvent& event);
  void layOut(QPoint wanted);
  void moveCanvas();
  void moveAlong();
  void moveHandles();
  void moveRulers();

  const ComboBox& skin_;
  QString skinName_;
  CanvasWidget* canvas_;
  QList<EdgeHandle*> handles_;
  QList<Ruler*> rulers_;
  QPoint highest_;  ///< the place of the canvas's corner when both bars stand at their start
  Guides guides_;
  bool fits_ = true;
  bool isReachedByKeys_ = false;  ///< the focus came to the canvas by the tabulator
  bool areRulersShown_ = true;
  bool isSized_ = false;  ///< one of the handles is held
  bool isLayingOut_ = false;
  int layouts_ = 0;  ///< tells a layout that another one has taken its place
  int wheel_ = 0;    ///< what was turned short of a step, eighths of a degree
};

}  // namespace veneerer
