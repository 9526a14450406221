#include "exchange/zipwriter.h"

#include <quazip/quazipfile.h>
#include <quazip/quazipnewinfo.h>

#include <QFileInfo>
#include <algorithm>

#include "exchange/texts.h"
#include "files/plainfile.h"

namespace veneerer {

namespace {

constexpr auto kFilePermissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr auto kFolderPermissions = kFilePermissions | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;

// The format counts years from 1980 on, in seven bits.
QDateTime timeOf(const QString& path) {
  const QDateTime first(QDate(1980, 1, 1), QTime(0, 0));
  const QDateTime last(QDate(2107, 12, 31), QTime(23, 59));
  return std::clamp(QFileInfo(path).lastModified(), first, last);
}

QuaZipNewInfo entryOf(const QString& name, const QString& path, QFile::Permissions permissions) {
  QuaZipNewInfo entry(name);
  entry.dateTime = timeOf(path);
  entry.setPermissions(permissions);
  return entry;
}

}  // namespace

ZipWriter::ZipWriter(Disk& disk, const QString& path) : device_(disk, path), zip_(&device_) {
  zip_.setUtf8Enabled(true);
  requireFine(zip_.open(QuaZip::mdCreate));
}

void ZipWriter::requireFine(bool isFine) const {
  if (!device_.fault().isEmpty()) throw ZipFault(device_.fault());
  if (!isFine || zip_.getZipError() != 0) throw ZipFault(ExchangeTexts::tr("it can't be packed"));
}

void ZipWriter::addFolder(const QString& name, const QString& path) {
  QuaZipFile entry(&zip_);
  requireFine(entry.open(QIODevice::WriteOnly, entryOf(name, path, kFolderPermissions)));
  entry.close();
  requireFine(entry.getZipError() == 0);
}

void ZipWriter::addFile(const QString& name, const TreeFile& file, const std::function<void()>& step) {
  QuaZipFile entry(&zip_);
  requireFine(entry.open(QIODevice::WriteOnly, entryOf(name, file.path, kFilePermissions)));
  PlainFileReader reader(file.path);
  qint64 total = 0;
  for (QByteArray bytes = reader.next(); !bytes.isEmpty(); bytes = reader.next()) {
    step();
    total += bytes.size();
    if (total > file.bytes) throw ZipFault(ExchangeTexts::tr("the file grows while it is packed"));
    requireFine(entry.write(bytes) == bytes.size());
  }
  if (!reader.fault().isEmpty()) throw ZipFault(reader.fault());
  entry.close();
  requireFine(entry.getZipError() == 0);
}

void ZipWriter::finish() {
  zip_.close();
  requireFine(true);
}

}  // namespace veneerer
