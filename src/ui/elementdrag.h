// What a drag on the canvas does between its press and its release.
#pragma once

#include "ui/handles.h"
#include "ui/operator.h"
#include "ui/overlay.h"

namespace veneerer {

/// The guides in the coordinates of the element's container; twips.
Surroundings surroundingsOf(const Element& element, const Guides& guides, const CanvasScale& scale);

/// Where a move event is to be, in the element's coordinates, so that the element comes to lie on the nearest
/// line within reach of the place; twips.
QPointF snapped(const Element& element, QPointF place, QPointF anchor, const Surroundings& around,
                double reach);

/// A handle of the element in hand is dragged. Sizes are whole canvas pixels, at least one.
class SizeDrag {
public:
  explicit SizeDrag(Operator& hands) : hands_(hands) {}

  /// Places in twips of the canvas window.
  void begin(Handle handle, const Element& element, QPointF at);
  void move(QPointF at);
  void end();
  bool isOn() const { return handle_ != Handle::None; }

private:
  Operator& hands_;
  Handle handle_ = Handle::None;
  QSizeF size_;  ///< at the press, twips
  bool hasMoved_ = false;
  QPointF from_;
};

}  // namespace veneerer
