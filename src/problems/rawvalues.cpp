#include "problems/rawvalues.h"

#include <algorithm>

#include "elements/numbers.h"

namespace veneerer {

namespace {

/// The texts of lines that are asked for in their order. None is kept: a stranger's file may have millions.
class LineText {
public:
  explicit LineText(const QByteArray& bytes) : reader_(bytes) {}

  const QString& of(int line) {
    while (!reader_.atEnd() && reader_.line() <= line) text_ = reader_.readLine();
    return text_;
  }

private:
  RecordReader reader_;
  QString text_;
};

}  // namespace

std::vector<RawValue> rawValues(const Layout& layout, const std::vector<int>& rowLines,
                                const QByteArray& bytes) {
  std::vector<RawValue> values;
  LineText texts(bytes);
  RecordReader reader(bytes);
  bool startsLine = true;
  for (std::size_t i = 0; i < rowLines.size() && !reader.atEnd(); ++i) {
    if (rowLines[i] == 0) continue;
    const Row& row = layout.rows()[i];
    const int line = reader.line();
    const bool isWholeLine = row.field() && row.field()->kind == ValueKind::FontSize;
    const RecordValue value = isWholeLine ? RecordValue(reader.readLine()) : reader.readValue();
    const bool endsLine = reader.atEnd() || reader.line() > line;
    values.push_back({&row, value, line, texts.of(line), startsLine, endsLine});
    startsLine = endsLine;
  }
  return values;
}

int lineCount(const QByteArray& bytes) {
  RecordReader reader(bytes);
  int count = 0;
  for (; !reader.atEnd(); ++count) reader.skipLine();
  return count;
}

QString valueText(const RecordValue& value) {
  if (const auto* text = std::get_if<QString>(&value)) return *text;
  if (const auto* number = std::get_if<double>(&value)) return plainNumber(*number);
  if (const auto* truth = std::get_if<bool>(&value))
    return *truth ? QStringLiteral("True") : QStringLiteral("False");
  return {};
}

QString withoutLeadingBlanks(const QString& text) {
  const auto isBlank = [](QChar c) { return c == u' ' || c == u'\t'; };
  return text.mid(std::ranges::find_if_not(text, isBlank) - text.begin());
}

}  // namespace veneerer
