#include "skintool/rowdamage.h"

#include <cmath>
#include <limits>

#include "elements/numbers.h"
#include "elements/printable.h"
#include "skintool/textdamage.h"

namespace veneerer {

namespace {

/// What a row's value must survive.
enum class Sort : std::uint8_t {
  Dropped,    ///< a line for a human reader
  Text,       ///< comes back character by character
  Reference,  ///< the same, but its file may prove it right
  Number,     ///< comes back as it stands but for the blanks around it
};

bool isNumberText(const Row& row) {
  // Boxes that show a number fill their text with the sign's blank in front.
  return row.kind == RowKind::NumberText || row.from.property == Property::Text;
}

Sort sortOf(const Row& row) {
  switch (row.kind) {
    case RowKind::Literal:
    case RowKind::LabelLine:
    case RowKind::Version:
      return Sort::Dropped;
    case RowKind::Stored:
      return Sort::Reference;
    case RowKind::Text:
    case RowKind::NumberText:
      return isNumberText(row) ? Sort::Number : Sort::Text;
    default:
      return Sort::Number;
  }
}

QString nameOf(const Row& row) {
  switch (sortOf(row)) {
    case Sort::Dropped:
      return QStringLiteral("label line");
    case Sort::Reference:
      return QStringLiteral("image reference");
    case Sort::Text:
      return row.from.property == Property::FontName ? QStringLiteral("font name")
                                                     : QStringLiteral("caption");
    case Sort::Number:
      return row.kind == RowKind::FontSize ? QStringLiteral("font size") : QStringLiteral("number");
  }
  return {};
}

QString wholeText(double number) {
  const std::optional<std::int32_t> whole = toWhole(number);
  return whole ? QString::number(*whole) : QString();
}

/// How a save writes the number in that row, less the blanks around it; empty when the row can't hold it.
QString writtenNumber(const Row& row, double number) {
  const bool isSingle = std::abs(number) <= std::numeric_limits<float>::max();
  switch (row.kind) {
    case RowKind::Single:
      return isSingle ? singleText(static_cast<float>(number)) : QString();
    case RowKind::FontSize:
      return isSingle ? singleText(std::trunc(static_cast<float>(number))) : QString();
    case RowKind::Whole:
      return wholeText(std::trunc(number));
    case RowKind::Text:
    case RowKind::NumberText:
    case RowKind::Stored:
      return plainNumber(number);
    default:
      return wholeText(number);
  }
}

QString numberDamage(const RawValue& raw) {
  const QString text = raw.text.trimmed();
  const auto* number = std::get_if<double>(&raw.value);
  const bool isSize = raw.row->kind == RowKind::FontSize && !text.isEmpty();
  if (!number && !isSize) return {};
  const QString back = writtenNumber(*raw.row, number ? *number : leadingNumber(raw.text));
  if (back.isEmpty() || back == text) return {};
  return QStringLiteral("the %1 \"%2\" comes back as \"%3\"").arg(nameOf(*raw.row), excerpt(text), back);
}

/// A text in quotes is read without them; a save writes it so.
QString quotesDamage(const QString& what, const RawValue& raw) {
  const QString lost = QStringLiteral("the %1 %2 loses its quotes").arg(what, excerpt(raw.text.trimmed()));
  const QString later = textDamage(what, valueText(raw.value));
  return later.isEmpty() ? lost : lost + QStringLiteral("; then ") + later;
}

/// Blanks at the start are part of what a caption shows; no other text misses them.
QString shownText(const RawValue& raw) {
  return raw.row->from.property == Property::Caption ? raw.text : withoutLeadingBlanks(raw.text);
}

QString firstOf(std::initializer_list<QString> damages) {
  for (const QString& damage : damages)
    if (!damage.isEmpty()) return damage;
  return {};
}

}  // namespace

QString rowDamage(const RawValue& raw) {
  if (!raw.startsLine || std::holds_alternative<OddValue>(raw.value)) return {};
  const Sort sort = sortOf(*raw.row);
  const QString what = nameOf(*raw.row);
  const QString text = shownText(raw);
  const bool isText = sort == Sort::Text || sort == Sort::Reference;
  if (isText && withoutLeadingBlanks(text).startsWith(u'"')) return quotesDamage(what, raw);
  if (!raw.endsLine) return lineDamage(sort == Sort::Number ? QStringLiteral("line") : what, raw.text);
  if (sort == Sort::Dropped) return lineDamage(what, raw.text);
  if (sort == Sort::Text)
    return firstOf({utf8Damage(what, text), undefinedByteDamage(what, text), textDamage(what, text)});
  const bool isName = sort == Sort::Reference && !std::holds_alternative<double>(raw.value);
  return isName ? textDamage(what, text) : numberDamage(raw);
}

}  // namespace veneerer
