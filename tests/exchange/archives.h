// Archives of tests, made as nobody who means well makes them.
#pragma once

#include <quazip/quazip.h>
#include <quazip/quazipfile.h>
#include <quazip/quazipnewinfo.h>

#include <QBuffer>
#include <QList>

namespace veneerer::test {

struct ZipEntry {
  QString name;
  QByteArray bytes = "x";
  quint32 mode = 0;                ///< of a file on disk, with its kind; 0 for none
  const char* password = nullptr;  ///< null for none
};

inline QByteArray zipOf(const QList<ZipEntry>& entries) {
  QBuffer buffer;
  QuaZip zip(&buffer);
  zip.setUtf8Enabled(true);
  zip.open(QuaZip::mdCreate);
  for (const ZipEntry& entry : entries) {
    QuaZipNewInfo info(entry.name);
    info.externalAttr = entry.mode << 16;
    QuaZipFile file(&zip);
    file.open(QIODevice::WriteOnly, info, entry.password, 0x1234);
    file.write(entry.bytes);
    file.close();
  }
  zip.close();
  return buffer.data();
}

inline QStringList entryNames(const QString& archive) {
  QuaZip zip(archive);
  zip.open(QuaZip::mdUnzip);
  return zip.getFileNameList();
}

}  // namespace veneerer::test
