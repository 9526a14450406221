#include "records/recordwriter.h"

#include "elements/numbers.h"
#include "records/codepage.h"

namespace veneerer {

void RecordWriter::writeText(const QString& text) {
  bytes_ += toCodePage(text) + "\r\n";
}

void RecordWriter::writeWhole(std::int32_t number) {
  writeNumber(QString::number(number));
}

void RecordWriter::writeSingle(float number) {
  writeNumber(singleText(number));
}

void RecordWriter::writeStored(const StoredValue& value) {
  if (value.isNumber())
    writeNumber(value.text());
  else
    writeText(value.text());
}

void RecordWriter::writeNumber(const QString& digits) {
  if (!digits.startsWith(u'-')) bytes_ += ' ';
  bytes_ += digits.toLatin1() + " \r\n";
}

}  // namespace veneerer
