// The design canvas: one painted widget for all elements of Form1.
#pragma once

#include <QTimer>
#include <QWidget>

#include "painting/anigif.h"
#include "painting/canvaspainter.h"
#include "painting/hittest.h"
#include "ui/bindings.h"
#include "ui/dirtyarea.h"
#include "ui/paintpieces.h"

namespace veneerer {

/// Paints what has changed, and turns the mouse into clicks, presses and moves of the elements under it. An
/// element that takes a left press keeps the mouse until the button is released. A thin outline that isn't
/// part of the Skin marks the element that is held, else the one in hand.
class CanvasWidget : public QWidget {
  Q_OBJECT

public:
  explicit CanvasWidget(const Ui& ui);

  /// canvasSize()
  QSize sizeHint() const override;

Q_SIGNALS:
  /// The pointer stands on another element, null for none, or its element has changed.
  void pointed(const Element* element);
  /// The size of the canvas window has changed.
  void resized();

protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

private:
  void changed(const Change& change);
  void windowChanged(Property property);
  void repaintElement(const Element& element);
  void pictureFetched(const Picture& picture);
  void scheduleRepaint();
  void repaintDirty();
  bool isOnScreen(const QPainter& painter) const;
  QRegion paintPieces(QPainter& painter, const QRegion& region);
  void paintPiece(QPainter& painter, const QRect& piece);
  void refine();
  const Element* outlined() const;
  QRect outlineRect() const;
  void paintOutline(QPainter& painter) const;
  void hold(Element* element);
  void point(Element* element);
  void showToolTip(const QPoint& global, const QPoint& at);
  QPointF toTwips(QPointF pixels) const;
  QPointF inside(const Element& element, QPointF pixels) const;
  Element* at(QPointF pixels) const;

  Operator& hands_;
  State& state_;
  double pixelsPerTwipX_;
  double pixelsPerTwipY_;
  Attachment watching_;
  CanvasPainter painter_;
  HitTest hits_;
  DirtyArea dirty_;
  bool repaintScheduled_ = false;
  PaintPieces pieces_;
  QRegion coarse_;  ///< where pictures are yet to be scaled smoothly
  QTimer refining_;
  int refinements_ = 0;  ///< since the last change
  ucAniGIF frames_;
  QRect outline_;
  Element* grabbed_ = nullptr;
  Element* pointed_ = nullptr;
};

}  // namespace veneerer
