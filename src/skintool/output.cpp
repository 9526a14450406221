#include "skintool/output.h"

#include <QList>
#include <QString>
#include <QStringDecoder>
#include <algorithm>
#include <stdexcept>

#include "elements/printable.h"

namespace veneerer {

namespace {

// The whole of a stranger's text, escaped, may be too much to hold.
constexpr qsizetype kChunk = 64 * 1024;  // bytes

void require(bool isWritten) {
  if (!isWritten) throw std::runtime_error("the output can't be written");
}

void appendEscaped(QString& text, char32_t codePoint) {
  constexpr char16_t kDigits[] = u"0123456789abcdef";
  char16_t escape[] = u"\\u0000";
  const auto units = QChar::fromUcs4(codePoint);
  for (const QChar unit : QStringView(units)) {
    for (int i = 0; i < 4; ++i) escape[2 + i] = kDigits[(unit.unicode() >> (12 - 4 * i)) & 15];
    text += QStringView(escape, 6);
  }
}

QByteArray escaped(const QString& json) {
  QString text;
  text.reserve(json.size());
  for (const char32_t c : json.toUcs4()) {
    if (isPrintable(c) || c == U'\n')
      text += QChar::fromUcs4(c);
    else
      appendEscaped(text, c);
  }
  return text.toUtf8();
}

// Of ASCII the writer of JSON has escaped all but the last character.
bool isPlain(QByteArrayView json) {
  return std::ranges::all_of(json, [](char c) { return static_cast<unsigned char>(c) < 0x7F; });
}

}  // namespace

void print(std::FILE* out, QByteArrayView text) {
  put(out, text);
  require(std::fflush(out) == 0);
}

void put(std::FILE* out, QByteArrayView text) {
  // An empty view may point nowhere, which fwrite() must not be given.
  if (text.isEmpty()) return;
  const auto size = static_cast<std::size_t>(text.size());
  require(std::fwrite(text.data(), 1, size, out) == size);
}

void putJson(std::FILE* out, QByteArrayView json) {
  if (isPlain(json)) return put(out, json);
  QStringDecoder decoder(QStringDecoder::Utf8);
  for (qsizetype at = 0; at < json.size(); at += kChunk)
    put(out, escaped(decoder(json.sliced(at, std::min(kChunk, json.size() - at)))));
}

}  // namespace veneerer
