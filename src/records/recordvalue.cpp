#include "records/recordvalue.h"

#include <QRegularExpression>
#include <charconv>
#include <limits>
#include <string>

namespace veneerer {

namespace {

bool isDigit(QChar c) {
  return c >= u'0' && c <= u'9';
}

/// Walks over digits and returns how many there were.
int skipDigits(const QString& text, qsizetype& at, std::string& plain) {
  int count = 0;
  for (; at < text.size() && isDigit(text[at]); ++at, ++count) plain += static_cast<char>(text[at].unicode());
  return count;
}

bool skipSign(const QString& text, qsizetype& at, std::string& plain) {
  if (at >= text.size() || (text[at] != u'+' && text[at] != u'-')) return false;
  plain += static_cast<char>(text[at++].unicode());
  return true;
}

bool skipExponent(const QString& text, qsizetype& at, std::string& plain) {
  if (at == text.size()) return true;
  if (!QStringView(u"EeDd").contains(text[at])) return false;
  ++at;
  plain += 'e';
  skipSign(text, at, plain);
  return skipDigits(text, at, plain) > 0;
}

// The text is known to be well formed. Beyond a double's range it is infinite, or zero when it is too small.
double toDouble(const std::string& plain) {
  const char* first = plain.data() + (plain.front() == '+' ? 1 : 0);
  double number = 0;
  const auto result = std::from_chars(first, plain.data() + plain.size(), number);
  if (result.ec != std::errc::result_out_of_range) return number;
  return plain.find("e-") == std::string::npos ? std::numeric_limits<double>::infinity() : 0;
}

QString withoutBlanks(const QString& text) {
  qsizetype first = 0;
  qsizetype last = text.size();
  const auto isBlank = [&](qsizetype at) { return text[at] == u' ' || text[at] == u'\t'; };
  while (first < last && isBlank(first)) ++first;
  while (last > first && isBlank(last - 1)) --last;
  return text.mid(first, last - first);
}

bool isOddForm(const QString& text) {
  static const QRegularExpression form(QStringLiteral(
      "^#(NULL|ERROR \\d+|\\d{4}-\\d{2}-\\d{2}( \\d{2}:\\d{2}:\\d{2})?|\\d{2}:\\d{2}:\\d{2})#$"));
  return form.match(text).hasMatch();
}

}  // namespace

bool parseNumber(const QString& text, double& number) {
  std::string plain;
  qsizetype at = 0;
  skipSign(text, at, plain);
  int digits = skipDigits(text, at, plain);
  if (at < text.size() && text[at] == u'.') {
    plain += '.';
    ++at;
    digits += skipDigits(text, at, plain);
  }
  if (digits == 0 || !skipExponent(text, at, plain) || at != text.size()) return false;
  number = toDouble(plain);
  return true;
}

RecordValue recognise(const QString& unquoted) {
  const QString bare = withoutBlanks(unquoted);
  if (bare.isEmpty()) return std::monostate();
  double number = 0;
  if (parseNumber(bare, number)) return number;
  if (bare.startsWith(u'#')) {
    if (bare == u"#TRUE#") return true;
    if (bare == u"#FALSE#") return false;
    if (isOddForm(bare)) return OddValue{bare};
  }
  return unquoted;
}

}  // namespace veneerer
