#include "records/recordvalue.h"

#include <QRegularExpression>
#include <charconv>
#include <limits>
#include <string>

#include "records/codepage.h"

namespace veneerer {

namespace {

constexpr auto kNone = std::string_view::npos;

bool isSign(char c) {
  return c == '+' || c == '-';
}

std::size_t behindDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && text[at] >= '0' && text[at] <= '9') ++at;
  return at;
}

/// Where the exponent would begin, behind a sign, digits and a point; nowhere without a digit.
std::size_t exponentOf(std::string_view text) {
  const std::size_t first = !text.empty() && isSign(text.front()) ? 1 : 0;
  const std::size_t whole = behindDigits(text, first);
  if (whole == text.size() || text[whole] != '.') return whole > first ? whole : kNone;
  const std::size_t end = behindDigits(text, whole + 1);
  return end - first > 1 ? end : kNone;
}

bool isExponent(std::string_view text) {
  if (text.empty()) return true;
  if (std::string_view("EeDd").find(text.front()) == kNone) return false;
  const std::size_t first = text.size() > 1 && isSign(text[1]) ? 2 : 1;
  return first < text.size() && behindDigits(text, first) == text.size();
}

// The text is known to be well formed. Beyond a double's range it is infinite, or zero when it is too small.
double toDouble(std::string_view text, std::size_t exponent) {
  if (text.front() == '+') return toDouble(text.substr(1), exponent - 1);
  double number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (result.ec != std::errc::result_out_of_range) return number;
  const bool isTiny = exponent < text.size() && text[exponent + 1] == '-';
  return isTiny ? 0 : std::numeric_limits<double>::infinity();
}

std::string_view withoutBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  return first == kNone ? std::string_view() : text.substr(first, text.find_last_not_of(" \t") + 1 - first);
}

bool isOddForm(const QString& text) {
  static const QRegularExpression form(QStringLiteral(
      "^#(NULL|ERROR \\d+|\\d{4}-\\d{2}-\\d{2}( \\d{2}:\\d{2}:\\d{2})?|\\d{2}:\\d{2}:\\d{2})#$"));
  return form.match(text).hasMatch();
}

}  // namespace

bool parseNumber(std::string_view text, double& number) {
  const std::size_t exponent = exponentOf(text);
  if (exponent == kNone || !isExponent(text.substr(exponent))) return false;
  std::string plain;
  if (exponent < text.size() && (text[exponent] | 0x20) == 'd') {
    plain = text;
    plain[exponent] = 'e';
    text = plain;
  }
  number = toDouble(text, exponent);
  return true;
}

bool parseNumber(const QString& text, double& number) {
  const QByteArray bytes = text.toLatin1();
  return parseNumber(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())), number);
}

RecordValue recognise(std::string_view unquoted) {
  const std::string_view bare = withoutBlanks(unquoted);
  if (bare.empty()) return std::monostate();
  double number = 0;
  if (parseNumber(bare, number)) return number;
  if (bare == "#TRUE#") return true;
  if (bare == "#FALSE#") return false;
  if (bare.front() == '#')
    if (const QString form = fromCodePage(bare); isOddForm(form)) return OddValue{form};
  return fromCodePage(unquoted);
}

}  // namespace veneerer
