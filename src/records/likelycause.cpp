#include "records/likelycause.h"

#include <QStringList>
#include <algorithm>
#include <optional>

#include "elements/printable.h"
#include "records/recordreader.h"
#include "records/recordvalue.h"

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

QString counted(int count, const char* thing) {
  constexpr const char* kWords[] = {"no", "one", "two", "three", "four", "five", "six"};
  const QString number = count < static_cast<int>(std::size(kWords)) ? QString::fromLatin1(kWords[count])
                                                                     : QString::number(count);
  return number + u' ' + QString::fromLatin1(thing) + (count == 1 ? QString() : QStringLiteral("s"));
}

bool isNumber(const Row& row) {
  return row.counter() || (row.field() && row.field()->kind != ValueKind::Text);
}

const char* nameOf(const Row& row) {
  if (row.literal()) return row.literal()->captionOf ? "the caption in the label line" : "the label line";
  if (row.reference()) return "the image's name";
  if (isNumber(row)) return "the number";
  const Property property = row.field()->into.property;
  if (property == Property::Caption) return "the caption";
  return property == Property::FontName ? "the font's name" : "the text";
}

/// "the caption on line 4, two lines up (Rock, Pop)".
QString placeOf(const Placed& placed, const Stumble& stumble) {
  const int above = stumble.lines.back() - placed.line;
  const QString distance = above > 0 ? QStringLiteral(", %1 up").arg(counted(above, "line")) : QString();
  return QStringLiteral("%1 on line %2%3 (%4)")
      .arg(QString::fromLatin1(nameOf(*placed.row)))
      .arg(placed.line)
      .arg(distance, textOfLine(stumble.bytes, placed.line));
}

/// Each value has a line of its own, unless a comma ended one or a quote ran on.
QString oddLine(const Stumble& stumble) {
  const std::vector<Placed> rows = placedRows(stumble);
  const auto odd = std::ranges::adjacent_find(
      rows, [](const Placed& one, const Placed& next) { return next.line != one.line + 1; });
  if (odd == rows.end()) return {};
  const QString place = placeOf(*odd, stumble);
  if (std::next(odd)->line > odd->line)
    return QStringLiteral("a double quote opens in %1 and takes in the lines behind it").arg(place);
  if (isNumber(*odd->row)) return QStringLiteral("a comma in %1; a number takes a full stop").arg(place);
  return QStringLiteral("a comma in %1, which ends the value and shifts all behind it").arg(place);
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
    return QStringLiteral("%1 between line %2 and line %3")
        .arg(*shift > 0 ? counted(*shift, "line") + QStringLiteral(" too many")
                        : counted(-*shift, "missing line"))
        .arg(last)
        .arg(placed.line);
  }
  return {};
}

QString cutOff(const Stumble& stumble) {
  return QStringLiteral("the file is cut off: it has %1 of %2 lines")
      .arg(lineCount(stumble.bytes))
      .arg(stumble.layout.lineCount());
}

}  // namespace

QString likelyCause(const Stumble& stumble) {
  if (stumble.bytes.startsWith(kByteOrderMark) && stumble.lines.back() == 1)
    return QStringLiteral("a byte order mark at the file's start, which counts as text");
  const QString odd = oddLine(stumble);
  if (!odd.isEmpty()) return odd;
  return stumble.isAtEnd ? cutOff(stumble) : shiftedList(stumble);
}

}  // namespace veneerer
