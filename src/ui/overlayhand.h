// The operator's hand on the overlay: what selects there instead of pressing on the canvas.
#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "ui/canvaswidget.h"

namespace veneerer {

/// Shift and a click takes an element into the selection or out of it, Shift and a drag selects what a rubber
/// band touches. Ctrl and a click, or the menu key, lists all that lies under the pointer, hidden elements
/// too; a Ctrl press is held back until it moves, and is a press from then on. Enter clicks what is selected,
/// else what is in hand. Escape selects nothing. While a colour is to be picked, the next press picks it.
class OverlayHand : public QObject {
public:
  OverlayHand(Operator& hands, CanvasWidget& canvas);
  ~OverlayHand() override;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  enum class Hold { None, Band, Beneath };

  bool press(const QMouseEvent& event);
  bool move(const QMouseEvent& event);
  bool release(const QMouseEvent& event);
  bool key(const QKeyEvent& event);
  Element* selected() const;
  bool clickSelected();
  QPoint placeForKeys() const;
  void pressAfterAll();
  void selectIn(const QRect& band);
  void listBeneath(QPoint place);
  void pickAt(QPoint place);
  void endPicking();

  Operator& hands_;
  CanvasWidget& canvas_;
  Hold hold_ = Hold::None;
  QPoint from_;  ///< in the canvas widget
  std::unique_ptr<QMouseEvent> heldBack_;
  std::function<void(Colour)> picked_;  ///< null while no colour is to be picked
  bool isReplaying_ = false;
};

}  // namespace veneerer
