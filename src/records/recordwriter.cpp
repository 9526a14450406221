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

void writeRecordFile(const SkinFolder& folder, const QString& name, const QByteArray& bytes) {
  const QString path = folder.file(name);
  const auto fail = [&](const QString& what) { throw RecordError(name, 0, {}, {}, what); };
  // A stranger's folder may hold a link to elsewhere, or a pipe that never lets go, under a record file's
  // name.
  if (const QString refusal = folder.refusal(path); !refusal.isEmpty()) fail(refusal);
  const QFileInfo info(path);
  if (info.exists() && !info.isFile())
    fail(QStringLiteral("there is something under this name that is no file"));
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(bytes) != bytes.size())
    fail(QStringLiteral("the file can't be written: ") + file.errorString());
}

}  // namespace veneerer
