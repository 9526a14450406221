// What a drag on the canvas does between its press and its release.
#pragma once

#include <optional>

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

/// What the edges of an element that is sized are to agree with.
struct SizeSnap {
  Surroundings around;
  double reach;  ///< twips
};

/// A handle of the element in hand is dragged. Sizes are whole canvas pixels, at least one, but for an edge
/// that snaps to a line.
class SizeDrag {
public:
  explicit SizeDrag(Operator& hands) : hands_(hands) {}

  /// Places in twips of the canvas window.
  void begin(Handle handle, const Element& element, QPointF at);
  void move(QPointF at, const std::optional<SizeSnap>& snap);
  void end();
  bool isOn() const { return handle_ != Handle::None; }

private:
  float sized(Axis axis, double twips, const std::optional<SizeSnap>& snap) const;

  Operator& hands_;
  Handle handle_ = Handle::None;
  QPointF corner_;  ///< the top left one, in the element's container
  QSizeF size_;     ///< at the press, twips
  bool hasMoved_ = false;
  QPointF from_;
};

}  // namespace veneerer
