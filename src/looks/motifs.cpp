#include "looks/motifs.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace veneerer::looks {

namespace {

// Patterns are drawn for an area 600 pixels high.
double unitOf(const QRectF& area) {
  return std::max(0.4, std::min(area.width(), area.height()) / 600);
}

QColor doubled(QColor ink) {
  ink.setAlphaF(std::min(1.0F, ink.alphaF() * 2));
  return ink;
}

void paintRings(QPainter& painter, const QRectF& area, const QColor& ink) {
  const QPointF centre(area.right() - area.width() * 0.12, area.bottom() + area.height() * 0.1);
  const double step = std::max(5.0, area.height() / 42);
  for (int i = 3; i < 60; ++i) {
    painter.setPen(QPen(i % 6 == 0 ? doubled(ink) : ink, 1));
    painter.drawEllipse(centre, step * i, step * i);
  }
}

void paintSlats(QPainter& painter, const QRectF& area, const QColor& ink) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  for (double x = area.left(); x < area.right(); x += 4)
    painter.fillRect(QRectF(x, area.top(), 1, area.height()), ink);
  for (int i = 0; i < 5; ++i) {
    const double left = area.left() + area.width() * (0.15 + 0.2 * i);
    const double width = area.width() * (0.03 + 0.015 * (i % 3));
    const double lean = area.height() * 0.5;
    painter.drawPolygon(
        QPolygonF({QPointF(left, area.top()), QPointF(left + width, area.top()),
                   QPointF(left + width - lean, area.bottom()), QPointF(left - lean, area.bottom())}));
  }
}

void paintBubbles(QPainter& painter, const QRectF& area, const QColor& ink) {
  struct Bubble {
    double x, y, radius;  // shares of the area; the radius of its shorter side
  };
  constexpr Bubble kBubbles[] = {{.92, .9, .42},  {.75, 1.02, .26}, {.06, .96, .3},
                                 {.5, 1.05, .18}, {.99, .35, .2},   {.22, 1.02, .14}};
  const double side = std::min(area.width(), area.height());
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  for (const Bubble& bubble : kBubbles)
    painter.drawEllipse(QPointF(area.left() + area.width() * bubble.x, area.top() + area.height() * bubble.y),
                        side * bubble.radius, side * bubble.radius);
}

void paintBands(QPainter& painter, const QRectF& area, const QColor& ink) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  const double lean = area.height() * 0.8;
  const double wide = std::min(area.width(), area.height()) * 0.22;
  for (const double at : {0.62, 0.98}) {
    const double left = area.left() + area.width() * at;
    painter.drawPolygon(QPolygonF({QPointF(left + lean, area.top()), QPointF(left + wide + lean, area.top()),
                                   QPointF(left + wide, area.bottom()), QPointF(left, area.bottom())}));
  }
}

// A floor of lines that run to a horizon.
void paintGrid(QPainter& painter, const QRectF& area, const QColor& ink) {
  const double horizon = area.top() + area.height() * 0.55;
  const double depth = area.bottom() - horizon;
  painter.setPen(QPen(doubled(ink), std::max(1.0, 1.5 * unitOf(area))));
  for (int i = 0; i <= 9; ++i) {
    const double y = horizon + depth * i * i / 81;
    painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
  }
  const QPointF far(area.center().x(), horizon);
  for (int i = -12; i <= 12; ++i) {
    const double x = area.center().x() + i * area.width() / 9;
    painter.drawLine(far + QPointF(i * area.width() / 60, 0), QPointF(x, area.bottom()));
  }
}

// Fibres that wander a little, between the joints of planks.
void paintGrain(QPainter& painter, const QRectF& area, const QColor& ink) {
  const double unit = unitOf(area);
  const double plank = std::max(40.0, 130 * unit);
  painter.setBrush(Qt::NoBrush);
  int row = 0;
  for (double top = area.top(); top < area.bottom(); top += plank, ++row) {
    painter.setPen(QPen(doubled(ink), std::max(1.0, 2 * unit)));
    painter.drawLine(QPointF(area.left(), top), QPointF(area.right(), top));
    painter.setPen(QPen(ink, std::max(1.0, unit)));
    for (int i = 1; i < 9; ++i) {
      const double y = top + plank * i / 9;
      QPainterPath fibre(QPointF(area.left(), y));
      for (double x = area.left(); x <= area.right() + 24; x += 24)
        fibre.lineTo(x, y + plank * 0.04 *
                                (std::sin(x / (97 * unit) + row * 1.7 + i) +
                                 std::sin(x / (41 * unit) + row * 2.3 + i * 0.6)));
      painter.drawPath(fibre);
    }
  }
}

void paintWaves(QPainter& painter, const QRectF& area, const QColor& ink) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  for (int i = 0; i < 2; ++i) {
    const double y = area.top() + area.height() * (0.62 + 0.2 * i);
    const double swing = area.height() * 0.12;
    QPainterPath wave(QPointF(area.left(), y + swing * (i ? 0.6 : -0.4)));
    wave.cubicTo(area.left() + area.width() * 0.35, y - swing * (i ? 1.6 : -1.8),
                 area.left() + area.width() * 0.65, y + swing * (i ? 1.8 : -1.9), area.right(), y);
    wave.lineTo(area.bottomRight());
    wave.lineTo(area.bottomLeft());
    painter.drawPath(wave);
  }
}

void paintNothing(QPainter&, const QRectF&, const QColor&) {}

}  // namespace

void paintMotif(QPainter& painter, const QRectF& area, Motif motif, const QColor& ink) {
  constexpr void (*kPainters[])(QPainter&, const QRectF&, const QColor&) = {
      paintRings, paintSlats, paintBubbles, paintBands, paintGrid, paintGrain, paintNothing, paintWaves};
  painter.save();
  painter.setClipRect(area, Qt::IntersectClip);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  kPainters[static_cast<std::size_t>(motif)](painter, area, ink);
  painter.restore();
}

}  // namespace veneerer::looks
