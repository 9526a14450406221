#include "records/layoutwriter.h"

#include "records/fieldvalue.h"
#include "records/linewalk.h"
#include "records/recordwriter.h"

namespace veneerer {

namespace {

void write(RecordWriter& out, const Literal& literal, const Dress&) {
  out.writeText(literal.captionOf ? literal.text + literal.captionOf->as<QString>(Property::Caption)
                                  : literal.text);
}

void write(RecordWriter& out, const Field& field, const Dress& dress) {
  writeField(out, field, dress);
}

void write(RecordWriter& out, const Reference& reference, const Dress&) {
  out.writeStored(reference.from->value());
}

void write(RecordWriter& out, const Counter& counter, const Dress&) {
  out.writeWhole(counter.number());
}

}  // namespace

QByteArray composeRecords(const Layout& layout, const Dress& dress) {
  std::vector<WrittenRow> rows;
  return composeRecords(layout, rows, dress);
}

QByteArray composeRecords(const Layout& layout, std::vector<WrittenRow>& rows, const Dress& dress) {
  RecordWriter out;
  LineWalk walk(layout.rows());
  while (const Row* row = walk.next()) {
    rows.push_back({row, out.bytes().size()});
    std::visit([&](const auto& content) { write(out, content, dress); }, row->content);
  }
  return out.bytes();
}

}  // namespace veneerer
