#include "ui/overlay.h"

#include <QFontMetrics>
#include <algorithm>
#include <cmath>

#include "painting/hittest.h"
#include "ui/badge.h"
#include "ui/handles.h"

namespace veneerer {

namespace {

// How far around its lines a mark is repainted, pixels.
constexpr int kReach = 2;
// Grid lines that lie closer than this are thinned out, pixels.
constexpr double kClosestGrid = 6;

const QColor kHoverColour(0x2f, 0x9b, 0xff);
const QColor kSelectedColour(0xff, 0x9f, 0x1a);
const QColor kLineColour(0xff, 0x2d, 0x9b);
const QColor kGuideColour(0x00, 0xb8, 0xd4);
const QColor kGridColour(128, 128, 128, 110);

QRect reach(const QRect& rect) {
  const int r = kReach;
  return rect.isNull() ? rect : rect.adjusted(-r, -r, r, r);
}

QFont labelFont() {
  QFont font;
  font.setPixelSize(11);
  return font;
}

QRect labelRect(const CanvasMarks::Way& way) {
  const QFontMetrics metrics(labelFont());
  const QSize size(metrics.horizontalAdvance(way.length) + 6, metrics.height() + 2);
  return QRect(way.line.center() - QPoint(size.width() / 2, size.height() / 2), size);
}

QRect boundsOf(const QLine& line) {
  return QRect(line.p1(), line.p2()).normalized();
}

void paintOutline(QPainter& painter, const QRect& outline) {
  // Black and white side by side show on any Skin.
  const QRect line = outline.adjusted(0, 0, -1, -1);
  painter.setPen(QPen(Qt::black, 1));
  painter.drawRect(line);
  QPen dashes(Qt::white, 1);
  dashes.setDashPattern({4, 4});
  painter.setPen(dashes);
  painter.drawRect(line);
}

void paintWay(QPainter& painter, const CanvasMarks::Way& way) {
  painter.setPen(kLineColour);
  painter.drawLine(way.line);
  const QRect label = labelRect(way);
  painter.fillRect(label, kLineColour);
  painter.setPen(Qt::white);
  painter.setFont(labelFont());
  painter.drawText(label, Qt::AlignCenter, way.length);
}

// Far enough for any view, and within reach of a painter.
int within(double place, int low, int high) {
  return static_cast<int>(std::clamp<double>(std::round(place), low, high));
}

QLine lineOn(Axis axis, double at, double from, double to, const QRect& bounds) {
  const bool upright = axis == Axis::X;
  const int low = upright ? bounds.top() : bounds.left();
  const int high = upright ? bounds.bottom() : bounds.right();
  const int place = static_cast<int>(std::lround(at));
  const int begin = within(from, low, high);
  const int end = within(to, low, high);
  return upright ? QLine(place, begin, place, end) : QLine(begin, place, end, place);
}

// A last pixel belongs to what ends there: the line stands within the edge.
double shownPlace(double twips, double origin, double scale) {
  return (origin + twips) * scale;
}

}  // namespace

QRegion CanvasMarks::region() const {
  // Only the frames, not what lies in them.
  const auto frame = [](const QRect& rect) {
    if (rect.isNull()) return QRegion();
    const int r = kReach + 1;
    return QRegion(reach(rect)) - rect.adjusted(r, r, -r, -r);
  };
  QRegion region = frame(outline) + frame(hover);
  for (const QRect& each : selected) region += frame(each);
  region += reach(band);
  for (const QRect& handle : handles) region += reach(handle);
  for (const QRect& badge : badges + locks) region += reach(badge);
  for (const QLine& line : lines) region += reach(boundsOf(line));
  for (const Way& way : ways) region += QRegion(reach(boundsOf(way.line))) + reach(labelRect(way));
  return region;
}

void CanvasMarks::paint(QPainter& painter) const {
  for (const QRect& badge : badges) paintBadge(painter, badge);
  for (const QRect& lock : locks) paintLock(painter, lock);
  painter.setBrush(Qt::NoBrush);
  if (!hover.isNull()) {
    painter.setPen(QPen(kHoverColour, 1));
    painter.drawRect(hover.adjusted(0, 0, -1, -1));
  }
  painter.setPen(QPen(kSelectedColour, 2));
  for (const QRect& each : selected) painter.drawRect(each.adjusted(1, 1, -1, -1));
  if (!band.isNull()) {
    painter.fillRect(band, QColor(kHoverColour.red(), kHoverColour.green(), kHoverColour.blue(), 40));
    painter.setPen(QPen(kHoverColour, 1));
    painter.drawRect(band.adjusted(0, 0, -1, -1));
  }
  if (!outline.isNull()) paintOutline(painter, outline);
  for (const QRect& handle : handles) paintHandle(painter, handle);
  painter.setPen(QPen(kLineColour, 1));
  painter.drawLines(lines);
  for (const Way& way : ways) paintWay(painter, way);
}

void addAlignment(CanvasMarks& marks, const Element& element, const Surroundings& around,
                  const CanvasScale& scale, const QRect& bounds) {
  if (!element.container()) return;
  const QPointF origin = windowRect(*element.container()).topLeft();
  const QRectF rect(element.left(), element.top(), element.width(), element.height());
  const double x = scale.pixelsPerTwipX() * scale.zoom().factor();
  const double y = scale.pixelsPerTwipY() * scale.zoom().factor();
  const auto place = [&](Axis axis, double twips) {
    return axis == Axis::X ? shownPlace(twips, origin.x(), x) : shownPlace(twips, origin.y(), y);
  };
  const auto across = [](Axis axis) { return axis == Axis::X ? Axis::Y : Axis::X; };
  // Half a canvas pixel: what is seen in the same one agrees.
  for (const AlignmentLine& line : alignmentLines(rect, around, 0.5 / scale.pixelsPerTwipX()))
    marks.lines.append(lineOn(line.axis, place(line.axis, line.at), place(across(line.axis), line.from),
                              place(across(line.axis), line.to), bounds));
  for (const Distance& way : distances(rect, around)) {
    const double pixels =
        (way.to - way.from) * (way.axis == Axis::X ? scale.pixelsPerTwipX() : scale.pixelsPerTwipY());
    if (std::lround(pixels) < 1) continue;
    marks.ways.append({lineOn(across(way.axis), place(across(way.axis), way.at), place(way.axis, way.from),
                              place(way.axis, way.to), bounds),
                       QString::number(std::lround(pixels))});
  }
}

void paintGrid(QPainter& painter, const QRect& exposed, QSizeF step, const Zoom& zoom) {
  const auto thinned = [&](double pixels) {
    const double shown = pixels * zoom.factor();
    return shown * std::max(1.0, std::ceil(kClosestGrid / shown));
  };
  if (!(step.width() > 0) || !(step.height() > 0)) return;
  const double across = thinned(step.width());
  const double down = thinned(step.height());
  const auto first = [](int edge, double each) { return std::ceil(edge / each) * each; };
  for (double x = first(exposed.left(), across); x <= exposed.right(); x += across)
    painter.fillRect(QRect(qRound(x), exposed.top(), 1, exposed.height()), kGridColour);
  for (double y = first(exposed.top(), down); y <= exposed.bottom(); y += down)
    painter.fillRect(QRect(exposed.left(), qRound(y), exposed.width(), 1), kGridColour);
}

void paintGuides(QPainter& painter, const QRect& exposed, const Guides& guides, const Zoom& zoom) {
  for (const int guide : guides[static_cast<int>(Axis::X)])
    painter.fillRect(QRect(qRound(guide * zoom.factor()), exposed.top(), 1, exposed.height()), kGuideColour);
  for (const int guide : guides[static_cast<int>(Axis::Y)])
    painter.fillRect(QRect(exposed.left(), qRound(guide * zoom.factor()), exposed.width(), 1), kGuideColour);
}

}  // namespace veneerer
