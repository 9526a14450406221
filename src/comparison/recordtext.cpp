#include "comparison/recordtext.h"

#include "records/layoutreader.h"
#include "records/layoutwriter.h"
#include "records/recorderror.h"
#include "records/textlines.h"

namespace veneerer {

namespace {

enum class Side { Read, Written };

LineSubject subjectOf(const Reference& reference, Side side) {
  const ImageSlot& kept = side == Side::Read ? *reference.into : *reference.from;
  const bool isOwn = side == Side::Read || reference.into == reference.from;
  if (reference.button && isOwn) return {reference.button->key(), Property::Picture};
  if (reference.boxes[0]) return {reference.boxes[0]->key(), Property::Picture};
  return {kept.key(), Property::Name};
}

LineSubject subjectOf(const Counter& counter) {
  if (counter.kept) return {counter.kept->key(), Property::Value};
  return {QString::fromLatin1(counter.name), std::nullopt};
}

/// Nothing for a line for a human reader.
std::optional<LineSubject> subjectOf(const Row& row, Side side) {
  if (const Field* field = row.field()) {
    const Slot& slot = side == Side::Read ? field->into : field->from;
    return LineSubject{slot.element->key(), slot.property};
  }
  if (const Reference* reference = row.reference()) return subjectOf(*reference, side);
  if (const Counter* counter = row.counter()) return subjectOf(*counter);
  return std::nullopt;
}

}  // namespace

// A text may hold line ends of its own: every line of it is about the same.
RecordText writtenText(const Layout& layout) {
  std::vector<WrittenRow> rows;
  RecordText text{composeRecords(layout, rows), {}};
  TextLines lines(text.bytes);
  std::size_t row = 0;
  for (int line = 1; !lines.atEnd(); ++line) {
    while (row + 1 < rows.size() && rows[row + 1].start <= lines.position()) ++row;
    if (const auto subject = subjectOf(*rows[row].row, Side::Written)) text.subjects.emplace(line, *subject);
    lines.next();
  }
  return text;
}

RecordText readText(const Layout& layout, const QByteArray& bytes, Loading& loading) {
  RecordText text{bytes, {}};
  try {
    readRecords(layout, bytes, loading, Failures::AllFatal);
  } catch (const RecordError&) {
    return text;
  }
  const std::size_t count = std::min(loading.lines.size(), layout.size());
  for (std::size_t i = 0; i < count; ++i) {
    const auto subject = subjectOf(layout.rows()[i], Side::Read);
    // Of several values on one line, told apart by commas, the first names it.
    if (subject && loading.lines[i] > 0) text.subjects.emplace(loading.lines[i], *subject);
  }
  return text;
}

}  // namespace veneerer
