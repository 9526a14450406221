// What an element that is dragged has in common with what stands around it: where edges and centres agree,
// and how far it is to the next one. All in twips, in the coordinates of the container.
#pragma once

#include <QRectF>
#include <array>
#include <optional>
#include <vector>

#include "elements/axis.h"
#include "elements/element.h"

namespace veneerer {

/// What an element can be lined up with.
struct Surroundings {
  QRectF container;
  std::vector<QRectF> neighbours;
  std::array<std::vector<double>, 2> guides;  ///< by Axis: places across, and down
};

/// The container of that element and the visible elements that stand in it beside it; no guides. Whatever has
/// no area, or numbers that are none, is left out.
Surroundings surroundingsOf(const Element& element);

/// An upright line (Axis::X) or a level one (Axis::Y).
struct AlignmentLine {
  Axis axis;    ///< on which the place lies
  double at;    ///< the place
  double from;  ///< the line's ends on the other axis: it reaches over all that agree there
  double to;

  bool operator==(const AlignmentLine&) const = default;
};

/// The lines on which an edge agrees with an edge or a guide, or a centre with a centre, to within the
/// tolerance; at most one for each edge and the centre on either axis.
std::vector<AlignmentLine> alignmentLines(const QRectF& element, const Surroundings& around,
                                          double tolerance);

/// By how much to move the element so that something agrees: the nearest on each axis; 0 where nothing is
/// within reach.
QPointF snapOffset(const QRectF& element, const Surroundings& around, double reach);

/// By how much to move the right edge (Axis::X) or the bottom one (Axis::Y), while the other edges stay, so
/// that it agrees with the nearest edge or guide; nothing where none is within reach.
std::optional<double> snapFarEdge(const QRectF& element, const Surroundings& around, Axis axis, double reach);

/// A way to the next neighbour, or to the container's edge, along that axis.
struct Distance {
  Axis axis;
  double from;
  double to;  ///< always above from
  double at;  ///< the place of the way on the other axis

  bool operator==(const Distance&) const = default;
};

/// To the left, right, up and down, as far as there is any way. A neighbour counts when it lies beside the
/// element and wholly beyond its edge.
std::vector<Distance> distances(const QRectF& element, const Surroundings& around);

}  // namespace veneerer
