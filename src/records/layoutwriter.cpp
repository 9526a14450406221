#include "records/layoutwriter.h"

#include <algorithm>
#include <cmath>

#include "records/recordwriter.h"

namespace veneerer {

namespace {

std::int32_t withoutFraction(float number) {
  // The bounds are the nearest Singles inside 32 bits.
  return static_cast<std::int32_t>(std::trunc(std::clamp(number, -2147483648.0f, 2147483520.0f)));
}

void writeRow(const Row& row, RecordWriter& out) {
  const Slot& from = row.from;
  switch (row.kind) {
    case RowKind::Literal:
      return out.writeText(row.text);
    case RowKind::LabelLine:
      return out.writeText(row.text + from.element->as<QString>(from.property));
    case RowKind::Version:
      return out.writeWhole(row.number);
    case RowKind::Text:
    case RowKind::NumberText:
      return out.writeText(from.element->as<QString>(from.property));
    case RowKind::Integer:
    case RowKind::Long:
    case RowKind::HeldShape:
      return out.writeWhole(from.element->as<std::int32_t>(from.property));
    case RowKind::Single:
      return out.writeSingle(from.element->as<float>(from.property));
    case RowKind::Whole:
      return out.writeWhole(withoutFraction(from.element->as<float>(from.property)));
    case RowKind::FontSize:
      return out.writeSingle(std::trunc(from.element->as<float>(from.property)));
    case RowKind::Global:
      return out.writeWhole(*row.global);
    case RowKind::Stored:
      return out.writeStored(*row.storedFrom);
  }
}

}  // namespace

QByteArray composeRecords(const Layout& layout) {
  RecordWriter out;
  for (const Row& row : layout.rows()) writeRow(row, out);
  return out.bytes();
}

}  // namespace veneerer
