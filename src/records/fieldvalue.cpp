#include "records/fieldvalue.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "elements/numbers.h"
#include "elements/printable.h"
#include "records/texts.h"

namespace veneerer {

namespace {

QString asText(const RecordValue& value) {
  if (const auto* text = std::get_if<QString>(&value)) return *text;
  if (const auto* number = std::get_if<double>(&value)) return plainNumber(*number);
  if (const auto* truth = std::get_if<bool>(&value))
    return *truth ? QStringLiteral("True") : QStringLiteral("False");
  if (const auto* odd = std::get_if<OddValue>(&value))
    throw BadValue{RecordTexts::tr("%1 is a value that no field takes").arg(excerpt(odd->text))};
  return {};
}

double asNumber(const RecordValue& value) {
  if (std::holds_alternative<std::monostate>(value)) return 0;
  if (const auto* number = std::get_if<double>(&value)) return *number;
  if (const auto* truth = std::get_if<bool>(&value)) return *truth ? -1 : 0;
  const QString text = excerpt(asText(value));
  throw BadValue{RecordTexts::tr("a number is due here, but \"%1\" stands in its place").arg(text)};
}

float asSingle(double number) {
  if (!(std::abs(number) <= std::numeric_limits<float>::max())) throw OutOfRange();
  return static_cast<float>(number);
}

std::int32_t asLong(double number) {
  const std::optional<std::int32_t> whole = toWhole(number);
  if (!whole) throw OutOfRange();
  return *whole;
}

std::int32_t asInteger(double number) {
  const std::int32_t whole = asLong(number);
  if (whole < -32768 || whole > 32767) throw OutOfRange();
  return whole;
}

float scaled(const Field& field, float number) {
  return field.scale ? asSingle(double(number) * *field.scale) : number;
}

std::int32_t withoutFraction(float number) {
  // The bounds are the nearest Singles inside 32 bits.
  return static_cast<std::int32_t>(std::trunc(std::clamp(number, -2147483648.0f, 2147483520.0f)));
}

}  // namespace

Value readField(RecordReader& reader, const Field& field) {
  if (field.kind == ValueKind::FontSize) return asSingle(leadingNumber(reader.readLine()));
  const RecordValue value = reader.readValue();
  switch (field.kind) {
    case ValueKind::Text:
      return asText(value);
    case ValueKind::NumberText:
      return plainNumber(asNumber(value));
    case ValueKind::Integer:
      return asInteger(asNumber(value));
    case ValueKind::Long:
      return asLong(asNumber(value));
    case ValueKind::Colour:
      return Colour(asLong(asNumber(value)));
    default:
      return scaled(field, asSingle(asNumber(value)));
  }
}

double readNumber(RecordReader& reader) {
  return asNumber(reader.readValue());
}

StoredValue readStored(RecordReader& reader) {
  const RecordValue value = reader.readValue();
  if (const auto* number = std::get_if<double>(&value)) return StoredValue(*number);
  return StoredValue(asText(value));
}

void writeField(RecordWriter& out, const Field& field, const Dress& dress) {
  const Value& value = field.from.element->get(field.from.property);
  switch (field.kind) {
    case ValueKind::Text:
    case ValueKind::NumberText:
      return out.writeText(std::get<QString>(value));
    case ValueKind::Integer:
    case ValueKind::Long:
      return out.writeWhole(std::get<std::int32_t>(value));
    case ValueKind::Colour:
      return out.writeWhole(dress.of(*field.from.element, field.from.property).number());
    case ValueKind::Single:
      return out.writeSingle(std::get<float>(value));
    case ValueKind::Whole:
      return out.writeWhole(withoutFraction(std::get<float>(value)));
    case ValueKind::FontSize:
      return out.writeSingle(std::trunc(std::get<float>(value)));
  }
}

}  // namespace veneerer
