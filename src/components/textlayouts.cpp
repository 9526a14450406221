#include "components/textlayouts.h"

#include <QFont>
#include <QRawFont>
#include <QTextLayout>
#include <algorithm>

namespace veneerer {

namespace {

constexpr int kLongestText = 4096;      // characters
constexpr int kCachedGlyphs = 200'000;  // about 5 MB
constexpr int kOverhead = 16;           // what a layout costs besides its glyphs, in glyphs

constexpr int kBold = 1;
constexpr int kItalic = 2;
constexpr int kUnderline = 4;
constexpr int kStrikethrough = 8;

QFont fontOf(const TextRequest& request) {
  QFont font(request.fontName);
  font.setPixelSize(std::max(1, request.fontPixels));
  font.setBold(request.fontFlags & kBold);
  font.setItalic(request.fontFlags & kItalic);
  font.setUnderline(request.fontFlags & kUnderline);
  font.setStrikeOut(request.fontFlags & kStrikethrough);
  return font;
}

// Hard line breaks as the text engine wants them.
QString prepared(const QString& text) {
  QString lines = text.left(kLongestText);
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

QRectF inkOf(const QGlyphRun& run) {
  QRectF ink;
  const QRawFont font = run.rawFont();
  const QList<quint32> glyphs = run.glyphIndexes();
  const QList<QPointF> places = run.positions();
  for (qsizetype i = 0; i < glyphs.size(); ++i) ink |= font.boundingRect(glyphs[i]).translated(places[i]);
  // The layout's own box holds the underline and the strike, the glyphs may lean out of it.
  const bool isDecorated = run.underline() || run.strikeOut();
  return (isDecorated ? ink | run.boundingRect() : ink).adjusted(-1, -1, 1, 1);
}

void breakLines(QTextLayout& layout, const TextRequest& request, LaidOutText& made) {
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(request.width);
    line.setPosition(QPointF(0, made.height));
    made.height += line.height();
    made.width = std::max(made.width, line.naturalTextWidth());
  }
  layout.endLayout();
}

int costOf(const LaidOutText& text) {
  int cost = kOverhead;
  for (const QGlyphRun& run : text.runs) cost += static_cast<int>(run.glyphIndexes().size());
  return cost;
}

}  // namespace

size_t qHash(const TextRequest& r, size_t seed) {
  return qHashMulti(seed, r.text, r.fontName, r.fontPixels, r.fontFlags, r.width, r.alignment);
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
}

TextLayouts::TextLayouts() : made_(kCachedGlyphs) {}

const LaidOutText& TextLayouts::of(const TextRequest& request) {
  if (const LaidOutText* known = made_.object(request)) return *known;
  QTextLayout layout(prepared(request.text), fontOf(request));
  layout.setTextOption(optionOf(request.alignment));
  auto* text = new LaidOutText;
  breakLines(layout, request, *text);
  text->runs = layout.glyphRuns();
  for (const QGlyphRun& run : text->runs) text->ink |= inkOf(run);
  // A single text never costs as much as the whole cache, so it is always kept.
  made_.insert(request, text, costOf(*text));
  return *text;
}

}  // namespace veneerer
