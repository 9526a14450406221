#include "looks/icons.h"

#include <QPainterPath>
#include <QStringList>
#include <algorithm>

namespace veneerer::looks {

namespace {

// Parts in a square of 24 by 24, parted by blanks: a circle is "C" x, y, radius; a rectangle "R" x, y, width,
// height; a line "L" and its points; a closed line "P" and its corners.
struct Drawing {
  Icon icon;
  const char* parts;
};

constexpr Drawing kDrawings[] = {
    {Icon::Clock, "C12,12,9 L12,6,12,12,16,15"},
    {Icon::Magnifier, "C10,10,6.5 L15,15,21,21"},
    {Icon::Queue, "L3,6,15,6 L3,12,15,12 L3,18,11,18 P16,14,22,18,16,22"},
    {Icon::Podium, "R2,13,6,8 R9,7,6,14 R16,10,6,11 L12,2,12,4"},
    {Icon::Sliders, "L5,3,5,21 L12,3,12,21 L19,3,19,21 C5,15,2.5 C12,8,2.5 C19,13,2.5"},
    {Icon::Calendar, "R3,5,18,16 L3,10,21,10 L8,2,8,6 L16,2,16,6 L8,14,10,14 L14,14,16,14 L8,17,10,17"},
    {Icon::Note, "L9,18,9,5,19,3,19,16 C6.5,18,2.5 C16.5,16,2.5 L9,9,19,7"},
    {Icon::Tiles, "R3,3,7.5,7.5 R13.5,3,7.5,7.5 R3,13.5,7.5,7.5 R13.5,13.5,7.5,7.5"},
    {Icon::Disc, "C12,12,10 C12,12,3.5 C12,12,1"},
    {Icon::Play, "C12,12,10 P9.5,7.5,17,12,9.5,16.5"},
    {Icon::Person, "C12,8,4.5 L3.5,21,5.5,16,9,14.5,15,14.5,18.5,16,20.5,21"},
    {Icon::Stack, "P12,3,22,8,12,13,2,8 L2,12,12,17,22,12 L2,16,12,21,22,16"},
    {Icon::Plus, "C12,12,10 L12,7,12,17 L7,12,17,12"},
    {Icon::Dots, "R3,3,18,18 L7,8,17,8 L7,12,17,12 L7,16,17,16"},
    {Icon::Previous, "P12,5,12,19,2,12 P22,5,22,19,12,12"},
    {Icon::Pause, "R6,4,4,16 R14,4,4,16"},
    {Icon::Next, "P2,5,2,19,12,12 P12,5,12,19,22,12"},
    {Icon::Letters, "L2,19,7,5,12,19 L4,14,10,14 L15,5,22,5,15,19,22,19"},
    {Icon::Lock, "R5,10,14,11 L8,10,8,6,10,3,14,3,16,6,16,10 C12,15,1.5"},
    {Icon::Cross, "C12,12,10 L8,8,16,16 L16,8,8,16"},
    {Icon::Check, "C12,12,10 L7,12,11,16,17,8"},
    {Icon::Dice, "R3,3,18,18 C8,8,1.3 C16,8,1.3 C12,12,1.3 C8,16,1.3 C16,16,1.3"},
};

void addPart(QPainterPath& path, const QString& part) {
  QList<double> n;
  for (const QString& number : part.mid(1).split(u',')) n.append(number.toDouble());
  if (part[0] == u'C') {
    path.addEllipse(QPointF(n[0], n[1]), n[2], n[2]);
    return;
  }
  if (part[0] == u'R') {
    path.addRect(n[0], n[1], n[2], n[3]);
    return;
  }
  path.moveTo(n[0], n[1]);
  for (qsizetype i = 2; i + 1 < n.size(); i += 2) path.lineTo(n[i], n[i + 1]);
  if (part[0] == u'P') path.closeSubpath();
}

}  // namespace

QPainterPath iconPath(Icon icon) {
  QPainterPath path;
  for (const Drawing& drawing : kDrawings) {
    if (drawing.icon != icon) continue;
    for (const QString& part : QString::fromLatin1(drawing.parts).split(u' ')) addPart(path, part);
  }
  return path;
}

void drawIcon(QPainter& painter, const QRectF& rect, Icon icon, const QColor& colour) {
  const double side = std::min(rect.width(), rect.height());
  painter.save();
  painter.translate(rect.center() - QPointF(side, side) / 2);
  painter.scale(side / 24, side / 24);
  painter.setPen(QPen(colour, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(iconPath(icon));
  painter.restore();
}

}  // namespace veneerer::looks
