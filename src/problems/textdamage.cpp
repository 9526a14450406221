#include "problems/textdamage.h"

#include <algorithm>

#include "elements/printable.h"
#include "problems/rawvalues.h"
#include "problems/texts.h"
#include "records/codepage.h"

namespace veneerer {

namespace {

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
    return ProblemTexts::tr("a line end cuts the %1 \"%2\"").arg(what, excerpt(text));
  if (withoutLeadingBlanks(text).startsWith(u'"'))
    return ProblemTexts::tr("the %1 \"%2\" begins with a double quote and doesn't come back")
        .arg(what, excerpt(text));
  if (text.contains(u',')) return ProblemTexts::tr("a comma cuts the %1 \"%2\"").arg(what, excerpt(text));
  return {};
}

QString textDamage(const QString& what, const QString& text) {
  if (const QString moved = lineDamage(what, text); !moved.isEmpty()) return moved;
  const RecordValue value = readBack(text);
  if (std::holds_alternative<OddValue>(value))
    return ProblemTexts::tr("the next load fails on the %1 \"%2\"").arg(what, excerpt(text));
  const QString back = valueText(value);
  if (back == text) return {};
  if (asSaved(text) != text)
    return ProblemTexts::tr("the %1 \"%2\" comes back as \"%3\": code page 1252 can't hold it")
        .arg(what, excerpt(text), excerpt(back));
  if (!back.isEmpty() && withoutLeadingBlanks(text) == back)
    return ProblemTexts::tr("the %1 \"%2\" loses its leading blanks").arg(what, excerpt(text));
  return ProblemTexts::tr("the %1 \"%2\" comes back as \"%3\"").arg(what, excerpt(text), excerpt(back));
}

QString utf8Damage(const QString& what, const QString& text) {
  const QByteArray bytes = toCodePage(text);
  const QString meant = QString::fromUtf8(bytes);
  const bool isUtf8 = meant.toUtf8() == bytes;
  if (!isUtf8 || meant == text) return {};
  return ProblemTexts::tr("the %1 \"%2\" is \"%3\" in UTF-8, where code page 1252 is due")
      .arg(what, excerpt(text), excerpt(meant));
}

QString undefinedByteDamage(const QString& what, const QString& text) {
  // The defined bytes of this range stand for characters elsewhere.
  const auto isUndefined = [](QChar c) { return c.unicode() >= 0x80 && c.unicode() < 0xA0; };
  const auto found = std::ranges::find_if(text, isUndefined);
  if (found == text.end()) return {};
  return ProblemTexts::tr(
             "the %1 \"%2\" holds the byte %3 (hexadecimal), for which code page 1252 has no character")
      .arg(what, excerpt(text), QString::number(found->unicode(), 16).toUpper());
}

}  // namespace veneerer
