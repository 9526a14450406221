#include "records/layoutwriter.h"

#include "records/fieldvalue.h"
#include "records/linewalk.h"
#include "records/recordwriter.h"

namespace veneerer {

namespace {

void write(RecordWriter& out, const Literal& literal) {
  out.writeText(literal.captionOf ? literal.text + literal.captionOf->as<QString>(Property::Caption)
                                  : literal.text);
}

void write(RecordWriter& out, const Field& field) {
  writeField(out, field);
}

void write(RecordWriter& out, const Reference& reference) {
  out.writeStored(reference.from->value());
}

void write(RecordWriter& out, const Counter& counter) {
  out.writeWhole(counter.number());
}

}  // namespace

QByteArray composeRecords(const Layout& layout) {
  std::vector<WrittenRow> rows;
  return composeRecords(layout, rows);
}

QByteArray composeRecords(const Layout& layout, std::vector<WrittenRow>& rows) {
  RecordWriter out;
  LineWalk walk(layout.rows());
  while (const Row* row = walk.next()) {
    rows.push_back({row, out.bytes().size()});
    std::visit([&](const auto& content) { write(out, content); }, row->content);
  }
  return out.bytes();
}

}  // namespace veneerer
