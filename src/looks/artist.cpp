#include "looks/artist.h"

#include <QPainterPath>
#include <cmath>

#include "looks/lettering.h"

namespace veneerer::looks {

namespace {

constexpr int kFrameSurplusAcross = 4;  // of the window over the Skin, pixels
constexpr int kFrameSurplusDown = 34;
constexpr double kPi = 3.14159265358979323846;

QColor withAlpha(QColor colour, int alpha) {
  colour.setAlpha(alpha);
  return colour;
}

QLinearGradient downwards(const QRectF& area, const QColor& from, const QColor& to) {
  QLinearGradient gradient(area.topLeft(), area.bottomLeft());
  gradient.setColorAt(0, from);
  gradient.setColorAt(1, to);
  return gradient;
}

QRectF rectOf(const design::Box& box) {
  return QRectF(box.x, box.y, box.w, box.h);
}

QImage opaqueImage(QSize size) {
  return QImage(size.expandedTo(QSize(1, 1)), QImage::Format_RGB32);
}

QImage clearImage(QSize size) {
  QImage image(size.expandedTo(QSize(1, 1)), QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  return image;
}

void paintRings(QPainter& painter, const QRectF& area, const QColor& ink) {
  const QPointF centre(area.right() - area.width() * 0.12, area.bottom() + area.height() * 0.1);
  const double step = std::max(5.0, area.height() / 42);
  for (int i = 3; i < 60; ++i) {
    painter.setPen(QPen(withAlpha(ink, i % 6 == 0 ? ink.alpha() * 2 : ink.alpha()), 1));
    painter.drawEllipse(centre, step * i, step * i);
  }
}

void paintSlats(QPainter& painter, const QRectF& area, const QColor& ink) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(withAlpha(ink, ink.alpha() / 2));
  for (double x = area.left(); x < area.right(); x += 4)
    painter.drawRect(QRectF(x, area.top(), 1, area.height()));
  painter.setBrush(ink);
  for (int i = 0; i < 5; ++i) {
    const double left = area.left() + area.width() * (0.15 + 0.2 * i);
    const double width = area.width() * (0.03 + 0.015 * (i % 3));
    QPolygonF ray;
    ray << QPointF(left, area.top()) << QPointF(left + width, area.top())
        << QPointF(left + width - area.height() * 0.5, area.bottom())
        << QPointF(left - area.height() * 0.5, area.bottom());
    painter.drawPolygon(ray);
  }
}

void paintBubbles(QPainter& painter, const QRectF& area, const QColor& ink) {
  struct Bubble {
    double x, y, radius;  // shares of the area; the radius of its height
  };
  constexpr Bubble kBubbles[] = {{.92, .9, .42},  {.75, 1.02, .26}, {.06, .96, .3},
                                 {.5, 1.05, .18}, {.99, .35, .2},   {.22, 1.02, .14}};
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  for (const Bubble& bubble : kBubbles)
    painter.drawEllipse(QPointF(area.left() + area.width() * bubble.x, area.top() + area.height() * bubble.y),
                        area.height() * bubble.radius, area.height() * bubble.radius);
}

void paintWatermark(QPainter& painter, const QRectF& area, Icon icon, const QColor& ink) {
  if (icon == Icon::None) return;
  const double side = std::min(area.width(), area.height()) * 0.62;
  drawIcon(painter, QRectF(area.center().x() - side / 2, area.center().y() - side / 2, side, side), icon,
           ink);
}

// A ramp through three colours: what a picture in one hue needs.
QList<QRgb> ramp(const QColor& from, const QColor& through, const QColor& to, int count) {
  QList<QRgb> table;
  const auto mix = [](const QColor& a, const QColor& b, double share) {
    const auto part = [share](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * share)); };
    return qRgb(part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue()));
  };
  for (int i = 0; i < count; ++i) {
    const double at = 2.0 * i / (count - 1);
    table.append(at < 1 ? mix(from, through, at) : mix(through, to, at - 1));
  }
  return table;
}

}  // namespace

void Artist::paintMotif(QPainter& painter, const QRectF& area, double strength) const {
  painter.save();
  painter.setClipRect(area, Qt::IntersectClip);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  const QColor ink = withAlpha(look_.palette.accent, static_cast<int>(std::lround(14 * strength)));
  switch (look_.motif) {
    case Motif::Rings:
      paintRings(painter, area, ink);
      break;
    case Motif::Slats:
      paintSlats(painter, area, ink);
      break;
    case Motif::Bubbles:
      paintBubbles(painter, area, ink);
      break;
  }
  painter.restore();
}

void Artist::paintBar(QPainter& painter, const QRectF& area) const {
  const Palette& p = look_.palette;
  painter.fillRect(area, downwards(area, p.bar, p.barEnd));
  paintMotif(painter, area, 0.7);
  painter.fillRect(QRectF(area.left(), area.bottom() - 1, area.width(), 1), withAlpha(p.accent, 90));
}

QImage Artist::backdrop() const {
  const design::Plan& plan = look_.plan;
  const Palette& p = look_.palette;
  QImage image = opaqueImage({plan.width + kFrameSurplusAcross, plan.height + kFrameSurplusDown});
  QPainter painter(&image);
  const QRectF all = image.rect();
  painter.fillRect(all, downwards(all, p.backdrop, p.backdropEnd));
  paintMotif(painter, all, 1);
  for (const design::Box& box : {plan.logo, plan.player, plan.status, plan.menu})
    paintBar(painter, rectOf(box));
  painter.fillRect(QRectF(0, plan.height, all.width(), kFrameSurplusDown), p.barEnd);
  painter.fillRect(QRectF(plan.width, 0, kFrameSurplusAcross, all.height()), p.barEnd);
  return image;
}

QImage Artist::screen(QSize size, int header, Icon icon) const {
  const Palette& p = look_.palette;
  QImage image = opaqueImage(size);
  QPainter painter(&image);
  const QRectF all = image.rect();
  painter.fillRect(all, downwards(all, p.backdrop, p.backdropEnd));
  paintMotif(painter, all, 1);
  paintWatermark(painter, all.adjusted(0, header, 0, 0), icon, withAlpha(p.accent, 18));
  if (header > 0) {
    painter.fillRect(QRectF(0, 0, all.width(), header),
                     downwards(QRectF(0, 0, all.width(), header), p.header, p.bar));
    painter.fillRect(QRectF(0, header - 2, all.width(), 2), p.accentEnd);
  }
  painter.setPen(QPen(p.line, 1));
  painter.drawRect(all.adjusted(0.5, 0.5, -0.5, -0.5));
  return image;
}

QImage Artist::stage(QSize size) const {
  const Palette& p = look_.palette;
  QImage image = opaqueImage(size);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF all = image.rect();
  painter.fillRect(all, downwards(all, p.header, p.barEnd));
  paintMotif(painter, all, 2);
  // A record that looks out from behind the lower edge.
  const QPointF centre(all.center().x(), all.height() * 0.62);
  const double radius = all.height() * 0.34;
  QRadialGradient shine(centre, radius);
  shine.setColorAt(0, withAlpha(p.accent, 120));
  shine.setColorAt(0.3, withAlpha(p.accentEnd, 70));
  shine.setColorAt(1, withAlpha(p.accentEnd, 20));
  painter.setPen(Qt::NoPen);
  painter.setBrush(shine);
  painter.drawEllipse(centre, radius, radius);
  painter.setBrush(Qt::NoBrush);
  for (int i = 4; i <= 16; ++i) {
    painter.setPen(QPen(withAlpha(p.accent, i % 4 == 0 ? 90 : 34), 1));
    painter.drawEllipse(centre, radius * i / 16, radius * i / 16);
  }
  painter.setBrush(p.barEnd);
  painter.drawEllipse(centre, radius * 0.05, radius * 0.05);
  return image;
}

QImage Artist::bar(QSize size) const {
  QImage image = opaqueImage(size);
  QPainter painter(&image);
  paintBar(painter, image.rect());
  return image;
}

QImage Artist::logo(QSize size) const {
  const Palette& p = look_.palette;
  QImage image = bar(size);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const double height = size.height();
  const QRectF letters =
      QRectF(image.rect()).adjusted(height * 0.14, height * 0.26, -height * 0.14, -height * 0.4);
  for (const auto& [width, alpha] : {std::pair{0.16, 40}, std::pair{0.1, 80}}) {
    painter.setPen(
        QPen(withAlpha(p.accent, alpha), height * width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    drawLettering(painter, letters, QStringLiteral("MERLANE"), Qt::AlignHCenter);
  }
  painter.setPen(QPen(Qt::white, height * 0.045, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  drawLettering(painter, letters, QStringLiteral("MERLANE"), Qt::AlignHCenter);
  painter.setPen(QPen(p.icon, height * 0.02, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QRectF under(letters.left(), height * 0.72, letters.width(), height * 0.12);
  drawLettering(painter, under, QStringLiteral("V-QUILL EDITION"), Qt::AlignHCenter);
  return image;
}

QImage Artist::banner(QSize size, const QString& text) const {
  const Palette& p = look_.palette;
  QImage image = opaqueImage(size);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF all = image.rect();
  painter.fillRect(all, p.header);
  painter.fillRect(QRectF(0, all.height() * 0.15, std::max(3.0, all.height() * 0.1), all.height() * 0.7),
                   p.accent);
  const QRectF letters = all.adjusted(all.height() * 0.4, all.height() * 0.28, -4, -all.height() * 0.28);
  painter.setPen(QPen(Qt::white, all.height() * 0.07, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  drawLettering(painter, letters, text, Qt::AlignLeft);
  return image;
}

QImage Artist::card(QSize size, Icon icon) const {
  const Palette& p = look_.palette;
  QImage image = opaqueImage(size);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF all = image.rect();
  painter.fillRect(all, downwards(all, p.barEnd.lighter(130), p.barEnd));
  paintWatermark(painter, all, icon, withAlpha(p.accent, 40));
  painter.setPen(QPen(withAlpha(p.accent, 150), 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(all.adjusted(0.5, 0.5, -0.5, -0.5));
  return image;
}

QImage Artist::cover(int side) const {
  const Palette& p = look_.palette;
  QImage image = opaqueImage({side, side});
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF all = image.rect();
  QLinearGradient ground(all.topLeft(), all.bottomRight());
  ground.setColorAt(0, p.accentEnd);
  ground.setColorAt(1, p.barEnd);
  painter.fillRect(all, ground);
  const QPointF centre = all.center();
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(16, 18, 24));
  painter.drawEllipse(centre, side * 0.4, side * 0.4);
  painter.setBrush(Qt::NoBrush);
  for (int i = 0; i < 7; ++i) {
    painter.setPen(QPen(QColor(255, 255, 255, 26), 1));
    painter.drawEllipse(centre, side * (0.19 + 0.03 * i), side * (0.19 + 0.03 * i));
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(p.accent);
  painter.drawEllipse(centre, side * 0.14, side * 0.14);
  painter.setBrush(Qt::white);
  painter.drawEllipse(centre, side * 0.025, side * 0.025);
  return image;
}

QImage Artist::track(QSize size) const {
  const Palette& p = look_.palette;
  QImage image = opaqueImage(size);
  QPainter painter(&image);
  const QRectF all = image.rect();
  painter.fillRect(all, p.barEnd);
  QLinearGradient filled(all.topLeft(), all.topRight());
  filled.setColorAt(0, p.accentEnd);
  filled.setColorAt(1, p.accent);
  painter.fillRect(QRectF(0, 0, all.width() * 0.55, all.height()), filled);
  painter.setPen(QPen(p.line, 1));
  painter.drawRect(all.adjusted(0.5, 0.5, -0.5, -0.5));
  return image;
}

QRectF Artist::menuIconPlace(QSize size, int captionLines) const {
  constexpr double kCaptionLine = 14;
  const double width = size.width();
  const double height = size.height();
  if (look_.menuIcons == IconPlace::Left)
    return QRectF(height * 0.22, height * 0.25, height * 0.5, height * 0.5);
  if (look_.menuIcons == IconPlace::Lettered)
    return QRectF((width - height * 0.34) / 2, height * 0.14, height * 0.34, height * 0.34);
  // Half the lines, with an empty one on top, are above the middle of the face.
  const double free = (height - kCaptionLine * (captionLines + 1)) / 2 + kCaptionLine;
  const double side = std::min(free * 0.78, height * 0.4);
  return QRectF((width - side) / 2, (free - side) * 0.6, side, side);
}

QImage Artist::menuFace(QSize size, Icon icon, const QStringList& caption) const {
  QImage image = clearImage(size);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const double width = size.width();
  const double height = size.height();
  drawIcon(painter, menuIconPlace(size, static_cast<int>(caption.size())), icon, look_.palette.icon);
  painter.fillRect(QRectF(height * 0.1, 1, width - height * 0.2, 1), QColor(255, 255, 255, 50));
  if (look_.menuIcons != IconPlace::Lettered) return image;
  painter.setPen(QPen(Qt::white, height * 0.019, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  double top = height * (caption.size() > 1 ? 0.6 : 0.68);
  for (const QString& line : caption) {
    drawLettering(painter, QRectF(width * 0.05, top, width * 0.9, height * 0.105), line.toUpper(),
                  Qt::AlignHCenter);
    top += height * 0.17;
  }
  return image;
}

QImage Artist::popup(QSize size) const {
  QImage image = bar(size);
  QPainter painter(&image);
  painter.setPen(QPen(look_.palette.accent, 1));
  painter.drawRect(QRectF(image.rect()).adjusted(0.5, 0.5, -0.5, -0.5));
  return image;
}

QImage Artist::iconFace(QSize size, Icon icon) const {
  QImage image = clearImage(size);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const double side = std::min(size.width(), size.height()) * 0.5;
  const QRectF place((size.width() - side) / 2, (size.height() - side) / 2, side, side);
  painter.translate(place.topLeft());
  painter.scale(side / 24, side / 24);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::white);
  painter.drawPath(iconPath(icon));
  return image;
}

QImage Artist::prize(int side) const {
  const Palette& p = look_.palette;
  QImage image = clearImage({side, side});
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const double s = side;
  const QRectF box(s * 0.08, s * 0.38, s * 0.84, s * 0.58);
  const QRectF lid(s * 0.03, s * 0.24, s * 0.94, s * 0.16);
  const QColor ribbon = look_.theme.primary.fore == design::rgb(255, 255, 255) ? p.icon : p.accent;
  painter.setPen(Qt::NoPen);
  painter.setBrush(downwards(box, p.accentEnd.darker(125), p.accentEnd.darker(190)));
  painter.drawRoundedRect(box, s * 0.03, s * 0.03);
  painter.setBrush(p.accentEnd.darker(140));
  painter.drawRoundedRect(lid, s * 0.03, s * 0.03);
  painter.setBrush(ribbon);
  painter.drawRect(QRectF(s * 0.16, s * 0.24, s * 0.1, s * 0.72));
  painter.drawRect(QRectF(s * 0.74, s * 0.24, s * 0.1, s * 0.72));
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(ribbon, s * 0.05));
  painter.drawEllipse(QPointF(s * 0.39, s * 0.15), s * 0.1, s * 0.07);
  painter.drawEllipse(QPointF(s * 0.61, s * 0.15), s * 0.1, s * 0.07);
  return image;
}

QImage Artist::stars(QSize size) const {
  QImage image = clearImage(size);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(226, 150, 20), std::max(1.0, size.height() / 16.0), Qt::SolidLine, Qt::RoundCap,
                      Qt::RoundJoin));
  const double cell = size.width() / 5.0;
  const double radius = std::min(cell, static_cast<double>(size.height())) * 0.42;
  for (int i = 0; i < 5; ++i) {
    const QPointF centre(cell * (i + 0.5), size.height() / 2.0);
    QPolygonF star;
    for (int k = 0; k < 10; ++k) {
      const double reach = k % 2 == 0 ? radius : radius * 0.45;
      const double angle = kPi * k / 5 - kPi / 2;
      star << centre + QPointF(std::cos(angle), std::sin(angle)) * reach;
    }
    painter.drawPolygon(star);
  }
  return image;
}

std::vector<QImage> Artist::coverFrame(int side, int count) const {
  constexpr int kShades = 31;
  constexpr int kThickness = 6;
  const Palette& p = look_.palette;
  // Entry 0 is what lets the cover show.
  QList<QRgb> table = ramp(p.line, p.accent, Qt::white, kShades);
  table.prepend(qRgb(255, 0, 255));
  std::vector<QImage> frames;
  for (int frame = 0; frame < count; ++frame) {
    QImage image(side, side, QImage::Format_Indexed8);
    image.setColorTable(table);
    image.fill(0);
    for (int y = 0; y < side; ++y)
      for (int x = 0; x < side; ++x) {
        const int edge = std::min({x, y, side - 1 - x, side - 1 - y});
        if (edge >= kThickness) continue;
        const double angle = std::atan2(y - side / 2.0, x - side / 2.0) / (2 * kPi) + 0.5;
        const double turn = angle - static_cast<double>(frame) / count;
        const double light = 0.5 + 0.5 * std::cos(2 * kPi * 2 * turn);
        const double depth = 1 - std::abs(edge - kThickness / 2.0) / kThickness;
        image.scanLine(y)[x] = static_cast<uchar>(1 + std::lround((kShades - 1) * light * depth * 0.85));
      }
    frames.push_back(image);
  }
  return frames;
}

}  // namespace veneerer::looks
