#include "records/likelycause.h"

#include <QStringList>
#include <algorithm>
#include <optional>

#include "elements/printable.h"
#include "records/recordreader.h"
#include "records/recordvalue.h"
#include "records/texts.h"

namespace veneerer {

namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

// How far away a text is looked for that stands in the wrong place, lines.
constexpr int kFarthest = 12;

/// A row that was read, and the line on which its value began.
struct Placed {
  const Row* row;
  int line;
};

std::vector<Placed> placedRows(const Stumble& stumble) {
  std::vector<Placed> placed;
  for (std::size_t i = 0; i < stumble.lines.size(); ++i)
    if (stumble.lines[i] > 0) placed.push_back({&stumble.layout.rows()[i], stumble.lines[i]});
  return placed;
}

int lineCount(const QByteArray& bytes) {
  RecordReader reader(bytes);
  int count = 0;
  for (; !reader.atEnd(); ++count) reader.readLine();
  return count;
}

QString textOfLine(const QByteArray& bytes, int line) {
  RecordReader reader(bytes);
  QString text;
  for (int i = 0; i < line && !reader.atEnd(); ++i) text = reader.readLine();
  return excerpt(text);
}

// From two on.
QString numberWord(int number) {
  constexpr const char* kWords[] = {
      QT_TRANSLATE_NOOP("Records", "two"), QT_TRANSLATE_NOOP("Records", "three"),
      QT_TRANSLATE_NOOP("Records", "four"), QT_TRANSLATE_NOOP("Records", "five"),
      QT_TRANSLATE_NOOP("Records", "six")};
  const auto at = static_cast<std::size_t>(number - 2);
  return at < std::size(kWords) ? RecordTexts::tr(kWords[at]) : QString::number(number);
}

bool isNumber(const Row& row) {
  return row.counter() || (row.field() && row.field()->kind != ValueKind::Text);
}

QString nameOf(const Row& row) {
  if (row.literal())
    return row.literal()->captionOf ? RecordTexts::tr("the caption in the label line")
                                    : RecordTexts::tr("the label line");
  if (row.reference()) return RecordTexts::tr("the image's name");
  if (isNumber(row)) return RecordTexts::tr("the number");
  const Property property = row.field()->into.property;
  if (property == Property::Caption) return RecordTexts::tr("the caption");
  return property == Property::FontName ? RecordTexts::tr("the font's name") : RecordTexts::tr("the text");
}

/// "the caption on line 4, two lines up (Rock, Pop)".
QString placeOf(const Placed& placed, const Stumble& stumble) {
  const int above = stumble.lines.back() - placed.line;
  const QString number = QString::number(placed.line);
  const QString text = textOfLine(stumble.bytes, placed.line);
  if (above == 0) return RecordTexts::tr("%1 on line %2 (%3)").arg(nameOf(*placed.row), number, text);
  if (above == 1)
    return RecordTexts::tr("%1 on line %2, one line up (%3)").arg(nameOf(*placed.row), number, text);
  return RecordTexts::tr("%1 on line %2, %3 lines up (%4)")
      .arg(nameOf(*placed.row), number, numberWord(above), text);
}

/// Each value has a line of its own, unless a comma ended one or a quote ran on.
QString oddLine(const Stumble& stumble) {
  const std::vector<Placed> rows = placedRows(stumble);
  const auto odd = std::ranges::adjacent_find(
      rows, [](const Placed& one, const Placed& next) { return next.line != one.line + 1; });
  if (odd == rows.end()) return {};
  const QString place = placeOf(*odd, stumble);
  if (std::next(odd)->line > odd->line)
    return RecordTexts::tr("a double quote opens in %1 and takes in the lines behind it").arg(place);
  if (isNumber(*odd->row)) return RecordTexts::tr("a comma in %1; a number takes a full stop").arg(place);
  return RecordTexts::tr("a comma in %1, which ends the value and shifts all behind it").arg(place);
}

/// The rows read so far and some behind them, each of which would have a line of its own.
std::vector<Placed> expectedRows(const Stumble& stumble) {
  std::vector<Placed> placed = placedRows(stumble);
  const auto& rows = stumble.layout.rows();
  const std::size_t end = std::min(rows.size(), stumble.lines.size() + kFarthest);
  for (std::size_t i = stumble.lines.size(); i < end; ++i)
    placed.push_back({&rows[i], placed.back().line + 1});
  return placed;
}

QStringList firstLines(const QByteArray& bytes, int count) {
  RecordReader reader(bytes);
  QStringList lines;
  while (lines.size() < count && !reader.atEnd()) lines.append(reader.readLine());
  return lines;
}

/// Whether a line can stand for the row; of rows that aren't anchors any can.
bool suits(const Row& row, const QString& line) {
  double number = 0;
  if (row.reference()) return !parseNumber(line.trimmed(), number);
  return !row.literal() || line.startsWith(row.literal()->text.trimmed());
}

/// Whether a line has what only such a row has.
bool isMark(const Row& row, const QString& line) {
  if (row.reference()) return line.startsWith(u'\\');
  return row.literal() && !row.literal()->text.isEmpty() && suits(row, line);
}

/// How many lines further down than the row's own the nearest one stands that has its mark.
std::optional<int> shiftOf(const Placed& placed, const QStringList& lines) {
  for (int by = 1; by <= kFarthest; ++by)
    for (const int shift : {by, -by})
      if (isMark(*placed.row, lines.value(placed.line - 1 + shift))) return shift;
  return std::nullopt;
}

/// How many lines there are too many, or too few where it is below 0, between "%1" and "%2".
QString shiftText(int shift) {
  if (shift == 1) return RecordTexts::tr("one line too many between line %1 and line %2");
  if (shift == -1) return RecordTexts::tr("one missing line between line %1 and line %2");
  const QString text = shift > 0 ? RecordTexts::tr("%3 lines too many between line %1 and line %2")
                                 : RecordTexts::tr("%3 missing lines between line %1 and line %2");
  return QString(text).replace(QStringLiteral("%3"), numberWord(std::abs(shift)));
}

/// Texts and images among the numbers tell where the list has slipped: between the last one that stands in
/// its place and the first one that doesn't.
QString shiftedList(const Stumble& stumble) {
  const QStringList lines = firstLines(stumble.bytes, stumble.lines.back() + 2 * kFarthest);
  int last = 1;
  for (const Placed& placed : expectedRows(stumble)) {
    const QString line = lines.value(placed.line - 1);
    if (isMark(*placed.row, line)) last = placed.line;
    if (suits(*placed.row, line)) continue;
    const std::optional<int> shift = shiftOf(placed, lines);
    if (!shift) continue;
    return shiftText(*shift).arg(last).arg(placed.line);
  }
  return {};
}

QString cutOff(const Stumble& stumble) {
  return RecordTexts::tr("the file is cut off: it has %1 of %2 lines")
      .arg(lineCount(stumble.bytes))
      .arg(stumble.layout.lineCount());
}

}  // namespace

QString likelyCause(const Stumble& stumble) {
  if (stumble.bytes.startsWith(kByteOrderMark) && stumble.lines.back() == 1)
    return RecordTexts::tr("a byte order mark at the file's start, which counts as text");
  const QString odd = oddLine(stumble);
  if (!odd.isEmpty()) return odd;
  return stumble.isAtEnd ? cutOff(stumble) : shiftedList(stumble);
}

}  // namespace veneerer
