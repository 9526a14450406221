#include "canvas/alignmentlines.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace veneerer {

namespace {

struct Span {
  double low;
  double high;

  double centre() const { return (low + high) / 2; }
};

Span spanOf(const QRectF& rect, Axis axis) {
  return axis == Axis::X ? Span{rect.left(), rect.right()} : Span{rect.top(), rect.bottom()};
}

constexpr Axis other(Axis axis) {
  return axis == Axis::X ? Axis::Y : Axis::X;
}

bool hasArea(const QRectF& rect) {
  return std::isfinite(rect.right()) && std::isfinite(rect.bottom()) && std::isfinite(rect.left()) &&
         std::isfinite(rect.top()) && !rect.isEmpty();
}

enum class Stop { Low, Centre, High };
constexpr Stop kStops[] = {Stop::Low, Stop::Centre, Stop::High};

double placeOf(Stop stop, const Span& span) {
  if (stop == Stop::Centre) return span.centre();
  return stop == Stop::Low ? span.low : span.high;
}

/// A place that a stop may agree with, and how far along the other axis it is seen.
struct Candidate {
  double at;
  Span along;
};

std::vector<Candidate> candidatesFor(Stop stop, const Surroundings& around, Axis axis) {
  std::vector<Candidate> found;
  const auto add = [&](const QRectF& rect) {
    const Span span = spanOf(rect, axis);
    const Span along = spanOf(rect, other(axis));
    if (stop == Stop::Centre) return found.push_back({span.centre(), along});
    found.insert(found.end(), {{span.low, along}, {span.high, along}});
  };
  if (hasArea(around.container)) add(around.container);
  std::ranges::for_each(around.neighbours, add);
  if (stop != Stop::Centre)
    for (const double guide : around.guides[static_cast<int>(axis)])
      found.push_back({guide, spanOf(around.container, other(axis))});
  return found;
}

std::optional<AlignmentLine> lineAt(Stop stop, const QRectF& element, const Surroundings& around, Axis axis,
                                    double tolerance) {
  const double place = placeOf(stop, spanOf(element, axis));
  const Span own = spanOf(element, other(axis));
  AlignmentLine line{axis, place, own.low, own.high};
  bool agrees = false;
  for (const Candidate& candidate : candidatesFor(stop, around, axis)) {
    if (std::abs(candidate.at - place) > tolerance) continue;
    agrees = true;
    line.from = std::min(line.from, candidate.along.low);
    line.to = std::max(line.to, candidate.along.high);
  }
  return agrees ? std::optional(line) : std::nullopt;
}

std::optional<double> nearest(std::span<const Stop> stops, const QRectF& element, const Surroundings& around,
                              Axis axis, double reach) {
  std::optional<double> best;
  for (const Stop stop : stops) {
    const double place = placeOf(stop, spanOf(element, axis));
    for (const Candidate& candidate : candidatesFor(stop, around, axis)) {
      const double offset = candidate.at - place;
      if (std::abs(offset) <= (best ? std::abs(*best) : reach)) best = offset;
    }
  }
  return best;
}

double snapOffset(const QRectF& element, const Surroundings& around, Axis axis, double reach) {
  return nearest(kStops, element, around, axis, reach).value_or(0);
}

/// The way from the element's lower or higher edge outward.
std::optional<Distance> distance(const QRectF& element, const Surroundings& around, Axis axis, bool upward) {
  const Span own = spanOf(element, axis);
  const Span side = spanOf(element, other(axis));
  const Span room = spanOf(around.container, axis);
  Distance way = upward ? Distance{axis, own.high, room.high, side.centre()}
                        : Distance{axis, room.low, own.low, side.centre()};
  for (const QRectF& neighbour : around.neighbours) {
    const Span its = spanOf(neighbour, axis);
    const Span beside = spanOf(neighbour, other(axis));
    const Span shared{std::max(side.low, beside.low), std::min(side.high, beside.high)};
    if (shared.low >= shared.high) continue;
    const bool isNearer =
        upward ? its.low >= own.high && its.low < way.to : its.high <= own.low && its.high > way.from;
    if (!isNearer) continue;
    (upward ? way.to : way.from) = upward ? its.low : its.high;
    way.at = shared.centre();
  }
  return way.from < way.to ? std::optional(way) : std::nullopt;
}

QRectF rectOf(const Element& element) {
  return QRectF(element.left(), element.top(), element.width(), element.height());
}

}  // namespace

Surroundings surroundingsOf(const Element& element) {
  const Element* container = element.container();
  if (!container) return {};
  Surroundings around{QRectF(0, 0, container->width(), container->height()), {}, {}};
  for (const Element* each : container->children())
    if (each != &element && each->isVisible() && hasArea(rectOf(*each)))
      around.neighbours.push_back(rectOf(*each));
  return around;
}

std::vector<AlignmentLine> alignmentLines(const QRectF& element, const Surroundings& around,
                                          double tolerance) {
  std::vector<AlignmentLine> lines;
  for (const Axis axis : {Axis::X, Axis::Y})
    for (const Stop stop : kStops)
      if (const auto line = lineAt(stop, element, around, axis, tolerance)) lines.push_back(*line);
  return lines;
}

QPointF snapOffset(const QRectF& element, const Surroundings& around, double reach) {
  return QPointF(snapOffset(element, around, Axis::X, reach), snapOffset(element, around, Axis::Y, reach));
}

std::optional<double> snapFarEdge(const QRectF& element, const Surroundings& around, Axis axis,
                                  double reach) {
  constexpr Stop kFarEdge[] = {Stop::High};
  return nearest(kFarEdge, element, around, axis, reach);
}

std::vector<Distance> distances(const QRectF& element, const Surroundings& around) {
  std::vector<Distance> ways;
  if (!hasArea(around.container) || !hasArea(element)) return ways;
  for (const Axis axis : {Axis::X, Axis::Y})
    for (const bool upward : {false, true})
      if (const auto way = distance(element, around, axis, upward)) ways.push_back(*way);
  return ways;
}

}  // namespace veneerer
