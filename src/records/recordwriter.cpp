#include "records/recordwriter.h"

#include <QFile>
#include <QFileInfo>

#include "elements/numbers.h"
#include "records/codepage.h"
#include "records/recorderror.h"

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

void writeRecordFile(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(bytes) == bytes.size()) return;
  throw RecordError(QFileInfo(path).fileName(), 0, {}, {},
                    QStringLiteral("the file can't be written: ") + file.errorString());
}

}  // namespace veneerer
