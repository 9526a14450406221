#include "problems/rowdamage.h"

#include <cmath>
#include <limits>

#include "elements/numbers.h"
#include "elements/printable.h"
#include "problems/textdamage.h"
#include "problems/texts.h"

namespace veneerer {

namespace {

/// What a row's value must survive.
enum class Sort : std::uint8_t {
  Dropped,    ///< a line for a human reader
  Text,       ///< comes back character by character
  Reference,  ///< the same, but its file may prove it right
  Number,     ///< comes back as it stands but for the blanks around it
};

bool isFontSize(const Row& row) {
  return row.field() && row.field()->kind == ValueKind::FontSize;
}

Sort sortOf(const Field& field) {
  // Boxes that show a number fill their text with the sign's blank in front.
  const bool isText = field.kind == ValueKind::Text && field.from.property != Property::Text;
  return isText ? Sort::Text : Sort::Number;
}

Sort sortOf(const Row& row) {
  if (row.field()) return sortOf(*row.field());
  if (row.counter()) return row.counter()->kept ? Sort::Number : Sort::Dropped;
  return row.reference() ? Sort::Reference : Sort::Dropped;
}

QString nameOf(const Row& row) {
  switch (sortOf(row)) {
    case Sort::Dropped:
      return ProblemTexts::tr("label line");
    case Sort::Reference:
      return ProblemTexts::tr("image reference");
    case Sort::Text:
      return row.field()->from.property == Property::FontName ? ProblemTexts::tr("font name")
                                                              : ProblemTexts::tr("caption");
    case Sort::Number:
      return isFontSize(row) ? ProblemTexts::tr("font size") : ProblemTexts::tr("number");
  }
  return {};
}

QString wholeText(double number) {
  const std::optional<std::int32_t> whole = toWhole(number);
  return whole ? QString::number(*whole) : QString();
}

/// How a save writes the number, less the blanks around it; empty when the field can't hold it.
QString writtenNumber(ValueKind kind, double number) {
  const bool isSingle = std::abs(number) <= std::numeric_limits<float>::max();
  switch (kind) {
    case ValueKind::Single:
      return isSingle ? singleText(static_cast<float>(number)) : QString();
    case ValueKind::FontSize:
      return isSingle ? singleText(std::trunc(static_cast<float>(number))) : QString();
    case ValueKind::Whole:
      return wholeText(std::trunc(number));
    case ValueKind::Text:
    case ValueKind::NumberText:
      return plainNumber(number);
    default:
      return wholeText(number);
  }
}

QString writtenNumber(const Row& row, double number) {
  if (row.reference()) return plainNumber(number);
  if (row.counter()) return wholeText(row.counter()->intoRange(number));
  return writtenNumber(row.field() ? row.field()->kind : ValueKind::Integer, number);
}

QString numberDamage(const RawValue& raw) {
  const QString text = raw.text.trimmed();
  const auto* number = std::get_if<double>(&raw.value);
  const bool isSize = isFontSize(*raw.row) && !text.isEmpty();
  if (!number && !isSize) return {};
  const QString back = writtenNumber(*raw.row, number ? *number : leadingNumber(raw.text));
  if (back.isEmpty() || back == text) return {};
  return ProblemTexts::tr("the %1 \"%2\" comes back as \"%3\"").arg(nameOf(*raw.row), excerpt(text), back);
}

/// A text in quotes is read without them; a save writes it so.
QString quotesDamage(const QString& what, const RawValue& raw) {
  const QString lost = ProblemTexts::tr("the %1 %2 loses its quotes").arg(what, excerpt(raw.text.trimmed()));
  const QString later = textDamage(what, valueText(raw.value));
  return later.isEmpty() ? lost : ProblemTexts::tr("%1; then %2").arg(lost, later);
}

/// Blanks at the start are part of what a caption shows; no other text misses them.
QString shownText(const RawValue& raw) {
  const Field* field = raw.row->field();
  const bool isCaption = field && field->from.property == Property::Caption;
  return isCaption ? raw.text : withoutLeadingBlanks(raw.text);
}

/// Boxes that show a number take any text.
bool holdsText(const RawValue& raw) {
  const Field* field = raw.row->field();
  return field && field->kind == ValueKind::Text && std::holds_alternative<QString>(raw.value);
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
  const bool isText = sort == Sort::Text || sort == Sort::Reference || holdsText(raw);
  if (isText && withoutLeadingBlanks(text).startsWith(u'"')) return quotesDamage(what, raw);
  if (!raw.endsLine) return lineDamage(sort == Sort::Number ? ProblemTexts::tr("line") : what, raw.text);
  if (sort == Sort::Dropped) return lineDamage(what, raw.text);
  if (sort == Sort::Text)
    return firstOf({utf8Damage(what, text), undefinedByteDamage(what, text), textDamage(what, text)});
  const bool isName = sort == Sort::Reference && !std::holds_alternative<double>(raw.value);
  return isName || holdsText(raw) ? textDamage(what, text) : numberDamage(raw);
}

}  // namespace veneerer
