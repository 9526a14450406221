#include "looks/artist.h"

#include <QPainterPath>
#include <cmath>

#include "looks/lettering.h"
#include "looks/motifs.h"

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

// So far that white can be read on it.
QColor darkened(QColor colour) {
  for (int i = 0; i < 20 && contrastOf(Qt::white, colour) < 6; ++i) colour = colour.darker(115);
  return colour;
}

QImage opaqueImage(QSize size) {
  return QImage(size.expandedTo(QSize(1, 1)), QImage::Format_RGB32);
}

QImage clearImage(QSize size) {
  QImage image(size.expandedTo(QSize(1, 1)), QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  return image;
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

void Artist::paintPattern(QPainter& painter, const QRectF& area, QColor ink, double strength) const {
  // A quarter of it at most, which the inks of the scheme allow for.
  constexpr double kUsual = 0.055;
  constexpr double kOfLines = 2;
  if (look_.motif == Motif::Grid || look_.motif == Motif::Grain) strength *= kOfLines;
  ink.setAlphaF(static_cast<float>(std::min(kUsual * strength, kMotifShare / 2)));
  veneerer::looks::paintMotif(painter, area, look_.motif, ink);
}

void Artist::paintBar(QPainter& painter, const QRectF& area) const {
  const Palette& p = scheme_.palette;
  painter.fillRect(area, downwards(area, p.bar, p.barEnd));
  paintPattern(painter, area, p.barMotif, 0.8);
  const double edge = std::max(1.0, std::round(plan_.scale));
  painter.fillRect(QRectF(area.left(), area.bottom() - edge, area.width(), edge),
                   withAlpha(p.accent, std::min(255, look_.lines * 3)));
}

QImage Artist::backdrop() const {
  const design::Plan& plan = plan_;
  const Palette& p = scheme_.palette;
  QImage image = opaqueImage({plan.width + kFrameSurplusAcross, plan.height + kFrameSurplusDown});
  QPainter painter(&image);
  const QRectF all = image.rect();
  painter.fillRect(all, downwards(all, p.bar, p.barEnd));
  paintPattern(painter, all, p.barMotif, 1);
  for (const design::Box& box : {plan.logo, plan.player, plan.status, plan.menu})
    paintBar(painter, rectOf(box));
  painter.fillRect(QRectF(0, plan.height, all.width(), kFrameSurplusDown), p.barEnd);
  painter.fillRect(QRectF(plan.width, 0, kFrameSurplusAcross, all.height()), p.barEnd);
  return image;
}

QImage Artist::screen(QSize size, int header, Icon icon) const {
  const Palette& p = scheme_.palette;
  QImage image = opaqueImage(size);
  QPainter painter(&image);
  const QRectF all = image.rect();
  painter.fillRect(all, downwards(all, p.backdrop, p.backdropEnd));
  paintPattern(painter, all, p.motif, 1);
  paintWatermark(painter, all.adjusted(0, header, 0, 0), icon, withAlpha(p.motif, 18));
  if (header > 0) {
    painter.fillRect(QRectF(0, 0, all.width(), header),
                     downwards(QRectF(0, 0, all.width(), header), p.header, p.bar));
    const double edge = std::max(2.0, std::round(2 * plan_.scale));
    painter.fillRect(QRectF(0, header - edge, all.width(), edge), p.accent);
  }
  painter.setPen(QPen(p.line, 1));
  painter.drawRect(all.adjusted(0.5, 0.5, -0.5, -0.5));
  return image;
}

// A record that looks out from behind the lower edge of the texts.
QImage Artist::stage(QSize size) const {
  const Palette& p = scheme_.palette;
  QImage image = opaqueImage(size);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF all = image.rect();
  painter.fillRect(all, downwards(all, p.bar, p.barEnd));
  paintPattern(painter, all, p.barMotif, 2);
  if (look_.motif == Motif::Plain || look_.motif == Motif::Bands)
    drawIcon(painter, stageIcon(all), Icon::Note, withAlpha(p.accent, 60));
  else
    paintRecord(painter, all);
  return image;
}

void Artist::paintRecord(QPainter& painter, const QRectF& all) const {
  const Palette& p = scheme_.palette;
  const QPointF centre(all.center().x(), all.top() + all.height() * 0.56);
  const double radius = std::min(all.height() * 0.36, all.width() * 0.42);
  QRadialGradient shine(centre, radius);
  shine.setColorAt(0, withAlpha(p.barMotif, 60));
  shine.setColorAt(0.3, withAlpha(p.barMotif, 36));
  shine.setColorAt(1, withAlpha(p.barMotif, 12));
  painter.setPen(Qt::NoPen);
  painter.setBrush(shine);
  painter.drawEllipse(centre, radius, radius);
  painter.setBrush(Qt::NoBrush);
  for (int i = 4; i <= 16; ++i) {
    painter.setPen(QPen(withAlpha(p.barMotif, i % 4 == 0 ? 60 : 28), std::max(1.0, plan_.scale)));
    painter.drawEllipse(centre, radius * i / 16, radius * i / 16);
  }
}

QImage Artist::bar(QSize size) const {
  QImage image = opaqueImage(size);
  QPainter painter(&image);
  paintBar(painter, image.rect());
  return image;
}

QImage Artist::logo(QSize size) const {
  const Palette& p = scheme_.palette;
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
  painter.setPen(
      QPen(scheme_.theme.bar.heading.toQColor(), height * 0.045, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  drawLettering(painter, letters, QStringLiteral("MERLANE"), Qt::AlignHCenter);
  painter.setPen(
      QPen(scheme_.theme.bar.accent.toQColor(), height * 0.02, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QRectF under(letters.left(), height * 0.72, letters.width(), height * 0.12);
  drawLettering(painter, under, QStringLiteral("V-QUILL EDITION"), Qt::AlignHCenter);
  return image;
}

// A title in the header looks like those that are texts.
QImage Artist::banner(QSize size, const QString& text) const {
  QImage image = opaqueImage(size);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF all = image.rect();
  const double above = std::round(4 * plan_.scale);
  painter.fillRect(all, scheme_.palette.header);
  paintPattern(painter, all.adjusted(0, -above, 0, above), scheme_.palette.barMotif, 0);
  const double pixels = 16 * plan_.textScale * 96 / 72;
  drawLines(painter, all, {text}, {plan_.font, pixels, Qt::AlignLeft},
            scheme_.theme.header.heading.toQColor());
  return image;
}

QImage Artist::card(QSize size, Icon icon) const {
  const Palette& p = scheme_.palette;
  QImage image = opaqueImage(size);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF all = image.rect();
  painter.fillRect(all, downwards(all, p.card, p.cardEnd));
  paintWatermark(painter, all, icon, withAlpha(p.motif, 24));
  painter.setPen(QPen(p.line, 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(all.adjusted(0.5, 0.5, -0.5, -0.5));
  return image;
}

QImage Artist::cover(int side) const {
  const Palette& p = scheme_.palette;
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
  const Palette& p = scheme_.palette;
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

// The rows of a caption under an icon share what the icon leaves; a wide button has them side by side.
QImage Artist::menuFace(QSize size, Icon icon, const QStringList& caption, const QColor& ink) const {
  QImage image = clearImage(size);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF all = image.rect();
  const double h = all.height(), w = all.width();
  const bool isBeside = look_.menuIcons == IconPlace::Left && w > 2.2 * h;
  const double pixels = std::min(12.5 * plan_.textScale, h * 0.26);
  const LetterStyle style{plan_.font, pixels, isBeside ? Qt::AlignLeft : Qt::AlignHCenter};
  if (isBeside) {
    const double side = h * 0.46;
    drawIcon(painter, QRectF(h * 0.2, (h - side) / 2, side, side), icon, scheme_.palette.icon);
    drawLines(painter, all.adjusted(side + h * 0.36, 0, -h * 0.1, 0), caption, style, ink);
    return image;
  }
  const double lines = std::min(h * 0.56, pixels * 1.2 * static_cast<double>(caption.size()));
  const double side = std::min(h - lines - h * 0.2, w * 0.5);
  const double top = (h - side - lines) * 0.46;
  drawIcon(painter, QRectF((w - side) / 2, top, side, side), icon, scheme_.palette.icon);
  drawLines(painter, QRectF(w * 0.04, top + side + h * 0.03, w * 0.92, lines), caption, style, ink);
  return image;
}

QImage Artist::captionFace(QSize size, const QStringList& caption, double points, const QColor& ink) const {
  QImage image = clearImage(size);
  QPainter painter(&image);
  const QRectF all = QRectF(image.rect()).adjusted(size.width() * 0.07, 2, -size.width() * 0.07, -2);
  drawLines(painter, all, caption, {plan_.font, points * plan_.textScale * 96 / 72, Qt::AlignHCenter}, ink);
  return image;
}

QRectF Artist::stageIcon(const QRectF& all) {
  const double side = std::min(all.width(), all.height()) * 0.5;
  return QRectF(all.center().x() - side / 2, all.top() + all.height() * 0.56 - side / 2, side, side);
}

QImage Artist::popup(QSize size) const {
  QImage image = bar(size);
  QPainter painter(&image);
  painter.setPen(QPen(scheme_.palette.accent, 1));
  painter.drawRect(QRectF(image.rect()).adjusted(0.5, 0.5, -0.5, -0.5));
  return image;
}

QImage Artist::iconFace(QSize size, Icon icon, const QColor& ink) const {
  QImage image = clearImage(size);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const double side = std::min(size.width(), size.height()) * 0.5;
  const QRectF place((size.width() - side) / 2, (size.height() - side) / 2, side, side);
  painter.translate(place.topLeft());
  painter.scale(side / 24, side / 24);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  painter.drawPath(iconPath(icon));
  return image;
}

QImage Artist::prize(int side) const {
  const Palette& p = scheme_.palette;
  QImage image = clearImage({side, side});
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const double s = side;
  const QRectF box(s * 0.08, s * 0.38, s * 0.84, s * 0.58);
  const QRectF lid(s * 0.03, s * 0.24, s * 0.94, s * 0.16);
  const QColor ribbon = scheme_.theme.screen.accent.toQColor();
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

QColor Artist::prizeInk() const {
  const QColor box = scheme_.palette.accentEnd;
  const QColor grounds[] = {box.darker(125), box.darker(190)};
  return legible(scheme_.theme.screen.heading.toQColor(), grounds);
}

void Artist::backWhiteText(QImage& image, const design::Box& place) const {
  if (contrastOf(Qt::white, scheme_.palette.header) > kLeastContrast) return;
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(darkened(scheme_.palette.accent));
  const design::Box plate = place.inset(-8, -6);
  painter.drawRoundedRect(QRectF(plate.x, plate.y, plate.w, plate.h), 6, 6);
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
  const Palette& p = scheme_.palette;
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
