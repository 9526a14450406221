#include "problems/textdamage.h"

#include <algorithm>

#include "elements/printable.h"
#include "problems/rawvalues.h"
#include "records/codepage.h"

namespace veneerer {

namespace {

QString quoted(const QString& what, const QString& text) {
  return QStringLiteral("the %1 \"%2\"").arg(what, excerpt(text));
}

QString change(const QString& what, const QString& text, const QString& back) {
  return QStringLiteral("%1 comes back as \"%2\"").arg(quoted(what, text), excerpt(back));
}

/// The grammar's own answer: what it reads from the line that a save makes of the text.
RecordValue readBack(const QString& text) {
  return RecordReader(toCodePage(text) + "\r\n").readValue();
}

}  // namespace

QString asSaved(const QString& text) {
  return fromCodePage(toCodePage(text).toStdString());
}

QString lineDamage(const QString& what, const QString& text) {
  if (text.contains(u'\r') || text.contains(u'\n'))
    return QStringLiteral("a line end cuts ") + quoted(what, text);
  if (withoutLeadingBlanks(text).startsWith(u'"'))
    return quoted(what, text) + QStringLiteral(" begins with a double quote and doesn't come back");
  if (text.contains(u',')) return QStringLiteral("a comma cuts ") + quoted(what, text);
  return {};
}

QString textDamage(const QString& what, const QString& text) {
  if (const QString moved = lineDamage(what, text); !moved.isEmpty()) return moved;
  const RecordValue value = readBack(text);
  if (std::holds_alternative<OddValue>(value))
    return QStringLiteral("the next load fails on ") + quoted(what, text);
  const QString back = valueText(value);
  if (back == text) return {};
  if (asSaved(text) != text)
    return change(what, text, back) + QStringLiteral(": code page 1252 can't hold it");
  if (!back.isEmpty() && withoutLeadingBlanks(text) == back)
    return quoted(what, text) + QStringLiteral(" loses its leading blanks");
  return change(what, text, back);
}

QString utf8Damage(const QString& what, const QString& text) {
  const QByteArray bytes = toCodePage(text);
  const QString meant = QString::fromUtf8(bytes);
  const bool isUtf8 = meant.toUtf8() == bytes;
  if (!isUtf8 || meant == text) return {};
  return QStringLiteral("%1 is \"%2\" in UTF-8, where code page 1252 is due")
      .arg(quoted(what, text), excerpt(meant));
}

QString undefinedByteDamage(const QString& what, const QString& text) {
  // The defined bytes of this range stand for characters elsewhere.
  const auto isUndefined = [](QChar c) { return c.unicode() >= 0x80 && c.unicode() < 0xA0; };
  const auto found = std::ranges::find_if(text, isUndefined);
  if (found == text.end()) return {};
  return QStringLiteral("%1 holds the byte %2 (hexadecimal), for which code page 1252 has no character")
      .arg(quoted(what, text), QString::number(found->unicode(), 16).toUpper());
}

}  // namespace veneerer
