#include "painting/textlayouts.h"

#include <QFont>
#include <QFontMetricsF>
#include <QRawFont>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace veneerer {

namespace {

constexpr int kLongestText = 1024;      // characters
constexpr int kCachedGlyphs = 200'000;  // about 5 MB
constexpr int kOverhead = 16;           // what a layout costs besides its glyphs, in glyphs

constexpr double kLean = 2;  // pixels

constexpr int kBold = 1;
constexpr int kItalic = 2;
constexpr int kUnderline = 4;
constexpr int kStrikethrough = 8;

QFont fontOf(const TextRequest& request) {
  QFont font(request.fontName);
  font.setPixelSize(std::max(1, request.fontPixels));
  font.setBold(request.fontFlags & kBold);
  font.setItalic(request.fontFlags & kItalic);
  return font;
}

// Hard line breaks as the text engine wants them.
QString prepared(const QString& text) {
  QString lines = text;
  lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  lines.replace(u'\r', u'\n');
  lines.replace(u'\n', QChar::LineSeparator);
  return lines;
}

QTextOption optionOf(int alignment) {
  constexpr Qt::Alignment kAlignments[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
  QTextOption option(kAlignments[std::clamp(alignment, 0, 2)] | Qt::AlignAbsolute);
  option.setWrapMode(QTextOption::WordWrap);
  return option;
}

// Drops the glyphs that could never be seen, so that the paint of a text is bounded by the room it is in. The
// font's own measures bound a glyph well enough; asking for the ink of each would take longer than all the
// rest.
void prune(QGlyphRun& run, const QRectF& sight) {
  const QRawFont font = run.rawFont();
  const double lean = font.pixelSize() / 4;
  const QRectF box(-lean, -font.ascent(), font.maxCharWidth() + lean, font.ascent() + font.descent());
  const QList<quint32> glyphs = run.glyphIndexes();
  const QList<QPointF> places = run.positions();
  QList<quint32> keptGlyphs;
  QList<QPointF> keptPlaces;
  for (qsizetype i = 0; i < glyphs.size(); ++i) {
    if (!box.translated(places[i]).intersects(sight)) continue;
    keptGlyphs.append(glyphs[i]);
    keptPlaces.append(places[i]);
  }
  run.setGlyphIndexes(keptGlyphs);
  run.setPositions(keptPlaces);
}

// Underlines and strikethroughs of one line. Left to the glyph runs they would all begin at the first line's
// left edge, wherever the line stands.
void ruleLine(const QTextLine& line, const QFontMetricsF& font, int flags, LaidOutText& made) {
  const QRectF text = line.naturalTextRect();
  const double baseline = line.y() + line.ascent();
  const double width = std::max(1.0, std::round(font.lineWidth()));
  const auto rule = [&](double y) {
    if (text.width() > 0) made.rules.append(QRectF(text.x(), std::round(y), text.width(), width));
  };
  if (flags & kUnderline) rule(baseline + font.underlinePos());
  if (flags & kStrikethrough) rule(baseline - font.strikeOutPos());
}

void breakLines(QTextLayout& layout, const TextRequest& request, LaidOutText& made) {
  const QFontMetricsF font(layout.font());
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(request.width);
    line.setPosition(QPointF(0, made.height));
    made.height += line.height();
    made.ink |= line.naturalTextRect();
    ruleLine(line, font, request.fontFlags, made);
    made.width = std::max(made.width, line.naturalTextWidth());
    if (made.height > request.height) break;
  }
  layout.endLayout();
  // Glyphs may lean a little out of their line.
  made.ink.adjust(-kLean, 0, kLean, 0);
  for (const QRectF& rule : std::as_const(made.rules)) made.ink |= rule;
}

int costOf(const LaidOutText& text) {
  int cost = kOverhead;
  for (const QGlyphRun& run : text.runs) cost += static_cast<int>(run.glyphIndexes().size());
  return cost;
}

}  // namespace

size_t qHash(const TextRequest& r, size_t seed) {
  return qHashMulti(seed, r.text, r.fontName, r.fontPixels, r.fontFlags, r.width, r.height, r.alignment);
}

int fontFlags(const FontChoice& font) {
  return (font.bold ? kBold : 0) | (font.italic ? kItalic : 0) | (font.underline ? kUnderline : 0) |
         (font.strikethrough ? kStrikethrough : 0);
}

int fontFlags(const Element& element) {
  return (element.as<bool>(Property::FontBold) ? kBold : 0) |
         (element.as<bool>(Property::FontItalic) ? kItalic : 0) |
         (element.as<bool>(Property::FontUnderline) ? kUnderline : 0) |
         (element.as<bool>(Property::FontStrikethrough) ? kStrikethrough : 0);
}

void LaidOutText::draw(QPainter& painter, QPointF at) const {
  for (const QGlyphRun& run : runs) painter.drawGlyphRun(at, run);
  for (const QRectF& rule : rules) painter.fillRect(rule.translated(at), painter.pen().color());
}

TextLayouts::TextLayouts() : made_(kCachedGlyphs) {}

const LaidOutText& TextLayouts::of(TextRequest request) {
  if (request.text.size() > kLongestText) request.text = request.text.left(kLongestText);
  if (const LaidOutText* known = made_.object(request)) return *known;
  QTextLayout layout(prepared(request.text), fontOf(request));
  layout.setTextOption(optionOf(request.alignment));
  auto* text = new LaidOutText;
  breakLines(layout, request, *text);
  text->runs = layout.glyphRuns();
  // A room's own size on every side is left for what a button shows of its caption outside of it.
  const QRectF sight(-request.width, -request.height, 3.0 * request.width, 3.0 * request.height);
  for (QGlyphRun& run : text->runs) prune(run, sight);
  // A single text never costs as much as the whole cache, so it is always kept.
  made_.insert(request, text, costOf(*text));
  return *text;
}

}  // namespace veneerer
