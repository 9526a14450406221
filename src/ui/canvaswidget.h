// The design canvas: one painted widget for all elements of Form1.
#pragma once

#include <QWidget>

#include "elements/dress.h"
#include "painting/anigif.h"
#include "painting/hittest.h"
#include "ui/bindings.h"
#include "ui/canvassurface.h"
#include "ui/dirtyarea.h"
#include "ui/elementdrag.h"
#include "ui/mockup.h"
#include "ui/overlay.h"
#include "ui/zoom.h"

namespace veneerer {

/// Paints what has changed, and turns the mouse into clicks, presses and moves of the elements under it. An
/// element that takes a left press keeps the mouse until the button is released. An outline that isn't part
/// of the Skin marks the element that is held, else the one in hand; handles on it feed the fields of its
/// height and width. The arrow keys nudge what is selected, else what is in hand. A thin outline marks what a
/// press would take, a padlock what is locked. While an element is dragged or sized, lines show what it
/// agrees with; with Ctrl held it snaps to them. A mock-up may lie over it all.
class CanvasWidget : public QWidget {
  Q_OBJECT

public:
  explicit CanvasWidget(const Ui& ui);

  Operator& hands() const { return hands_; }

  /// canvasSize()
  QSize sizeHint() const override;

  const Zoom& zoom() const { return scale_.zoom(); }
  /// The widget becomes as large as the canvas is shown.
  void setZoom(const Zoom& zoom);

  /// The steps of the grid in canvas pixels; an empty size for no grid.
  void setGrid(QSizeF step);
  void setGuides(const Guides& guides);
  /// In which colours the canvas is painted from now on; an empty dress for its own.
  void setDress(const Dress& dress);

  const MockUp& mockUp() const { return mockUp_; }
  void setMockUp(const MockUp& mockUp);

  /// The rubber band, pixels of this widget; null for none.
  void setBand(const QRect& band);

  /// What a press at that place of the widget would take; null for nothing.
  Element* elementAt(QPointF place) const;
  /// That place of the widget in twips of the canvas window.
  QPointF twipsAt(QPointF place) const { return scale_.twipsAt(place); }
  /// Where an element is shown, pixels of this widget.
  QRect placeOf(const Element& element) const;

  /// The colour of the canvas at that place, without all that lies over it and as if nothing were pointed at.
  QColor colourAt(QPoint place);

  /// The outline of the element in hand, pixels of this widget; null for none.
  QRect outline() const { return marks_.outline; }

Q_SIGNALS:
  /// The pointer stands on another element, null for none, or its element has changed.
  void pointed(const Element* element);
  /// The size of the canvas window has changed.
  void resized();
  /// The outline is another one.
  void outlineMoved();

protected:
  bool event(QEvent* event) override;
  void showEvent(QShowEvent*) override { frames_.setWatched(true); }
  void hideEvent(QHideEvent*) override { frames_.setWatched(false); }
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void leaveEvent(QEvent* event) override;

private:
  void changed(const Change& change);
  void windowChanged(Property property);
  void repaintElement(const Element& element);
  void pictureFetched(const Picture& picture);
  void scheduleRepaint();
  void repaintDirty();
  const Element* outlined() const;
  QRect outlineOf(const Element* element) const;
  QList<QRect> selectedOutlines() const;
  template <class Elements>
  QList<QRect> badges(const Elements& of, QRect (*place)(const QRect&)) const;
  CanvasMarks marks() const;
  void paintOverlay(QPainter& painter, const QRect& exposed) const;
  Element* sizable() const;
  Handle handleUnder(QPointF place) const;
  std::vector<Element*> nudged() const;
  void drag(QPointF place, bool snaps);
  void sizeTo(QPointF place, bool snaps);
  void endSizing();
  void hold(Element* element);
  void pointAt(QPointF place);
  void point(Element* element);
  void showToolTip(const QPoint& global, const QPoint& at);
  QPointF inside(const Element& element, QPointF place) const;

  Operator& hands_;
  const DiskFollower& disk_;
  State& state_;
  CanvasScale scale_;
  CanvasSurface surface_;
  Attachment watching_;
  HitTest hits_;
  DirtyArea dirty_;
  bool repaintScheduled_ = false;
  ucAniGIF frames_;
  QSizeF grid_;
  Guides guides_;
  MockUp mockUp_;
  QRect band_;
  CanvasMarks marks_;
  SizeDrag sizing_;
  Element* grabbed_ = nullptr;
  bool isDragged_ = false;  ///< what is grabbed has been moved
  Element* pointed_ = nullptr;
};

}  // namespace veneerer
