#include "records/codepage.h"

#include <algorithm>
#include <array>

namespace veneerer {

namespace {

// The code points of bytes 80 to 9F; all other bytes are their own code points.
constexpr char16_t kFirst = 0x80;
constexpr std::array<char16_t, 32> kUpper = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                             0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                             0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                             0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool isOwnCodePoint(char16_t c) {
  return c < kFirst || (c >= kFirst + kUpper.size() && c <= 0xFF);
}

char toByte(char16_t c) {
  if (isOwnCodePoint(c)) return static_cast<char>(c);
  const auto at = std::find(kUpper.begin(), kUpper.end(), c);
  return at == kUpper.end() ? '?' : static_cast<char>(kFirst + (at - kUpper.begin()));
}

}  // namespace

QString fromCodePage(std::string_view bytes) {
  QString text(static_cast<qsizetype>(bytes.size()), Qt::Uninitialized);
  QChar* out = text.data();
  for (const char byte : bytes) {
    const auto c = static_cast<unsigned char>(byte);
    *out++ = isOwnCodePoint(c) ? QChar(char16_t(c)) : QChar(kUpper[c - kFirst]);
  }
  return text;
}

QByteArray toCodePage(const QString& text) {
  QByteArray bytes;
  bytes.reserve(text.size());
  for (const QChar c : text) bytes += toByte(c.unicode());
  return bytes;
}

}  // namespace veneerer
