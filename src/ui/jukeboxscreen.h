// One screen of the jukebox as it would look and answer there.
#pragma once

#include <QWidget>

#include "painting/anigif.h"
#include "painting/hittest.h"
#include "ui/bindings.h"
#include "ui/canvassurface.h"
#include "ui/picturesinsight.h"
#include "ui/zoom.h"

namespace veneerer {

/// Paints a screen of the Skin in hand without showing it on the canvas: no Section, no property and no step
/// comes of it. Buttons look hovered and pressed under the mouse, and those of the menus lead to their
/// screens.
class JukeboxScreen : public QWidget {
  Q_OBJECT

public:
  JukeboxScreen(const Ui& ui, int entry);

  /// The screen that is shown, an entry of the Edit Section list.
  int entry() const { return entry_; }
  void goTo(int entry);

  /// The widget becomes as large as the whole canvas can be shown in that room, in whole percents.
  void fitInto(QSize room);
  /// Where an element is shown, pixels of this widget.
  QRect placeOf(const Element& element) const;

Q_SIGNALS:
  void went(int entry);

protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

private:
  void restage();
  const Element* elementAt(QPointF place) const;
  void point(const Element* element);
  void hold(const Element* element);
  void repaintElement(const Element* element);

  State& state_;
  PicturesInSight& inSight_;
  QSize canvas_;  ///< pixels at 100 %
  int entry_;
  Stage stage_;
  CanvasScale scale_;
  CanvasSurface surface_;
  HitTest hits_;
  ucAniGIF frames_;
  Attachment watching_;
  const Element* pointed_ = nullptr;
  const Element* held_ = nullptr;
};

}  // namespace veneerer
