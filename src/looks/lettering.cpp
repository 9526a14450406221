#include "looks/lettering.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <algorithm>

namespace veneerer::looks {

namespace {

// Strokes of a letter on a grid of 5 by 7 points: pairs of x and y, top left 00; strokes part at blanks.
struct Letter {
  char sign;
  const char* strokes;
};

constexpr Letter kLetters[] = {
    {'A', "062046 1434"},
    {'B', "00063645443303 33424130 3000"},
    {'C', "41301001051636 3645"},
    {'D', "00062644422000"},
    {'E', "40000646 0333"},
    {'F', "400006 0333"},
    {'G', "413010010516364543 4323"},
    {'H', "0006 4046 0343"},
    {'I', "2026"},
    {'J', "4045361605"},
    {'K', "0006 400346"},
    {'L', "000646"},
    {'M', "0600234046"},
    {'N', "06004640"},
    {'O', "103041453616050110"},
    {'P', "06003041423303"},
    {'Q', "103041453616050110 3446"},
    {'R', "06003041423303 2346"},
    {'S', "413010010213334445361605"},
    {'T', "0040 2026"},
    {'U', "000516364540"},
    {'V', "002640"},
    {'W', "0016233640"},
    {'X', "0046 4006"},
    {'Y', "002340 2326"},
    {'Z', "00400646"},
    {'0', "103041453616050110"},
    {'1', "112026"},
    {'2', "01103041420646"},
    {'3', "0040234445361605"},
    {'4', "36300444"},
    {'5', "400003334445361605"},
    {'6', "301001051636454433 3303"},
    {'7', "004016"},
    {'8', "103041423313020110 13040516364544 4433"},
    {'9', "43130201103041453616"},
    {'-', "1333"},
};

constexpr double kWidth = 4;
constexpr double kHeight = 6;
constexpr double kSpacing = 1.9;

const char* strokesOf(QChar sign) {
  for (const Letter& letter : kLetters)
    if (sign == QLatin1Char(letter.sign)) return letter.strokes;
  return "";
}

QPainterPath letterPath(const char* strokes, QPointF at, double unit) {
  QPainterPath path;
  bool begins = true;
  for (const char* c = strokes; c[0] && c[1];) {
    if (*c == ' ') {
      begins = true;
      ++c;
      continue;
    }
    const QPointF point = at + QPointF(c[0] - '0', c[1] - '0') * unit;
    if (begins)
      path.moveTo(point);
    else
      path.lineTo(point);
    begins = false;
    c += 2;
  }
  return path;
}

}  // namespace

void drawLettering(QPainter& painter, const QRectF& rect, const QString& text, Qt::Alignment alignment) {
  if (text.isEmpty()) return;
  const double letters = static_cast<double>(text.size());
  const double columns = letters * kWidth + (letters - 1) * kSpacing;
  const double unit = std::min(rect.width() / columns, rect.height() / kHeight);
  const double left =
      alignment & Qt::AlignHCenter ? rect.x() + (rect.width() - columns * unit) / 2 : rect.x();
  QPointF at(left, rect.y() + (rect.height() - kHeight * unit) / 2);
  painter.setBrush(Qt::NoBrush);
  for (const QChar sign : text) {
    painter.drawPath(letterPath(strokesOf(sign), at, unit));
    at.rx() += (kWidth + kSpacing) * unit;
  }
}

void drawLines(QPainter& painter, const QRectF& rect, const QStringList& lines, const LetterStyle& style,
               const QColor& ink) {
  constexpr int kMeasured = 100;
  constexpr double kLine = 1.2;
  QFont font(style.font);
  font.setBold(true);
  font.setPixelSize(kMeasured);
  const QFontMetricsF metrics(font);
  double widest = 1;
  for (const QString& line : lines) widest = std::max(widest, metrics.horizontalAdvance(line));
  const double count = static_cast<double>(lines.size());
  const double pixels =
      std::min({style.pixels, rect.width() / widest * kMeasured, rect.height() / (count * kLine)});
  font.setPixelSize(std::max(1, static_cast<int>(pixels)));
  painter.setFont(font);
  painter.setPen(ink);
  const double step = font.pixelSize() * kLine;
  double top = rect.center().y() - step * count / 2;
  for (const QString& line : lines) {
    painter.drawText(QRectF(rect.x(), top, rect.width(), step), style.align | Qt::AlignVCenter, line);
    top += step;
  }
}

}  // namespace veneerer::looks
