#include "elements/numbers.h"

#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

namespace veneerer {

namespace {

constexpr int kMostPlain = 10'000'000;  // a Single's text has up to seven digits, a double's more

/// A positive decimal number: first digit, point, further digits, times ten to the exponent.
struct Decimal {
  std::string digits;
  int exponent = 0;
};

Decimal parseScientific(const char* first, const char* last) {
  Decimal decimal;
  for (; first != last && *first != 'e'; ++first)
    if (*first != '.') decimal.digits += *first;
  if (first != last) decimal.exponent = std::stoi(std::string(first + 1, last));
  return decimal;
}

void dropTrailingZeros(Decimal& decimal) {
  while (decimal.digits.size() > 1 && decimal.digits.back() == '0') decimal.digits.pop_back();
}

// Halves away from zero. The digits behind the cut are exact, so a tie shows as a lone 5.
void roundTo(Decimal& decimal, std::size_t count) {
  if (decimal.digits.size() <= count) return;
  const bool up = decimal.digits[count] >= '5';
  decimal.digits.resize(count);
  if (!up) return;
  auto at = count;
  while (at > 0 && decimal.digits[at - 1] == '9') decimal.digits[--at] = '0';
  if (at > 0) {
    ++decimal.digits[at - 1];
  } else {
    decimal.digits = "1";
    ++decimal.exponent;
  }
}

template <class T>
Decimal shortestDecimal(T magnitude, std::size_t maximum) {
  std::array<char, 128> buffer;
  auto end = std::to_chars(buffer.begin(), buffer.end(), magnitude, std::chars_format::scientific).ptr;
  Decimal decimal = parseScientific(buffer.begin(), end);
  if (decimal.digits.size() > maximum) {
    // Enough digits that none of the value is lost where rounding could meet a tie.
    end = std::to_chars(buffer.begin(), buffer.end(), magnitude, std::chars_format::scientific, 60).ptr;
    decimal = parseScientific(buffer.begin(), end);
    roundTo(decimal, maximum);
  }
  dropTrailingZeros(decimal);
  return decimal;
}

std::string zeros(int count) {
  return std::string(static_cast<std::size_t>(count), '0');
}

std::string withExponent(const Decimal& decimal) {
  std::string text = decimal.digits;
  if (text.size() > 1) text.insert(1, 1, '.');
  const std::string exponent = std::to_string(std::abs(decimal.exponent));
  text += decimal.exponent < 0 ? "E-" : "E+";
  if (exponent.size() < 2) text += '0';
  return text += exponent;
}

// Without exponent while the digits fit into that many places before or behind the point.
std::string layOut(const Decimal& decimal, int places) {
  const int count = static_cast<int>(decimal.digits.size());
  const int whole = decimal.exponent + 1;
  std::string text = decimal.digits;
  if (whole > 0 && whole <= places) {
    if (count < whole) text += zeros(whole - count);
    if (count > whole) text.insert(static_cast<std::size_t>(whole), 1, '.');
    return text;
  }
  if (whole > 0 || count - whole > places) return withExponent(decimal);
  text.insert(0, zeros(-whole));
  return text.insert(0, 1, '.');
}

template <class T>
QString shortestText(T number, int digits) {
  if (number == 0 || !std::isfinite(number)) return QStringLiteral("0");
  // All digits of a whole number are within reach.
  if (std::abs(number) < kMostPlain && number == std::trunc(number))
    return QString::number(static_cast<std::int32_t>(number));
  const std::string text =
      layOut(shortestDecimal(std::abs(number), static_cast<std::size_t>(digits)), digits);
  return (number < 0 ? QStringLiteral("-") : QString()) +
         QString::fromLatin1(text.data(), qsizetype(text.size()));
}

std::string withoutBlanks(QStringView text) {
  std::string plain;
  for (const QChar c : text) {
    if (c == u' ' || c == u'\t') continue;
    const ushort code = c.unicode();
    plain += code < 128 ? (code == 'd' || code == 'D' ? 'E' : static_cast<char>(code)) : '?';
  }
  return plain;
}

// A number too large for a double, or too near to zero.
double beyondDouble(std::string_view text) {
  const bool isTiny = text.find("E-") != std::string_view::npos || text.front() == '.';
  return isTiny ? 0 : std::numeric_limits<double>::infinity();
}

}  // namespace

QString singleText(float number) {
  return shortestText(number, 7);
}

QString plainNumber(double number) {
  if (std::trunc(number) == number && std::abs(number) < 2147483648.0)
    return QString::number(static_cast<std::int32_t>(number));
  return shortestText(number, 15);
}

QString signedNumber(int number) {
  const QString digits = QString::number(number);
  return number < 0 ? digits : u' ' + digits;
}

double leadingNumber(QStringView text) {
  const std::string plain = withoutBlanks(text);
  const char* first = plain.data();
  const char* last = first + plain.size();
  const bool isNegative = first != last && *first == '-';
  if (first != last && (*first == '-' || *first == '+')) ++first;
  // A letter here would be "inf" or "nan", which are words, not numbers.
  if (first == last || !(std::isdigit(static_cast<unsigned char>(*first)) || *first == '.')) return 0;
  double number = 0;
  const auto result = std::from_chars(first, last, number);
  if (result.ec == std::errc::invalid_argument) return 0;
  if (result.ec == std::errc::result_out_of_range) number = beyondDouble({first, result.ptr});
  return isNegative ? -number : number;
}

float leadingSingle(QStringView text) {
  const double number = leadingNumber(text);
  return std::abs(number) <= std::numeric_limits<float>::max() ? static_cast<float>(number) : 0.0f;
}

std::int32_t leadingWhole(QStringView text) {
  return toWhole(leadingNumber(text)).value_or(0);
}

std::optional<std::int32_t> toWhole(double number) {
  const double rounded = std::nearbyint(number);
  if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) return std::nullopt;
  return static_cast<std::int32_t>(rounded);
}

}  // namespace veneerer
