#include "tools/colourtext.h"

#include <algorithm>

#include "elements/numbers.h"

namespace veneerer {

namespace {

constexpr int kWebLength = 7;
constexpr qsizetype kMostDigits = 8;

bool isHexDigit(QChar c) {
  return (c >= u'0' && c <= u'9') || (c.toLower() >= u'a' && c.toLower() <= u'f');
}

std::int32_t hexNumber(QStringView text) {
  const auto end = std::find_if_not(text.begin(), text.end(), isHexDigit);
  QString digits = text.first(end - text.begin()).toString();
  while (digits.startsWith(u'0')) digits.remove(0, 1);
  if (digits.size() > kMostDigits) return 0;
  return static_cast<std::int32_t>(digits.toUInt(nullptr, 16));
}

}  // namespace

Colour colourNumber(QStringView text) {
  const QStringView trimmed = text.trimmed();
  if (trimmed.startsWith(u"&H", Qt::CaseInsensitive)) return hexNumber(trimmed.sliced(2));
  return leadingWhole(trimmed);
}

Colour typedColour(QStringView text) {
  if (text.size() != kWebLength || !text.startsWith(u'#')) return colourNumber(text);
  return colourNumber(QStringLiteral("&H") + text.sliced(1, 2).toString() + text.sliced(5, 2).toString() +
                      text.sliced(3, 2).toString());
}

}  // namespace veneerer
