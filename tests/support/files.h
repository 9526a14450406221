// Files of tests, read and written whole.
#pragma once

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>

namespace veneerer::test {

/// The contents of files by their path within a folder.
using Files = QMap<QString, QByteArray>;

/// Makes the file's folder too.
inline void writeBytes(const QString& path, const QByteArray& bytes) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  if (file.open(QIODevice::WriteOnly)) file.write(bytes);
}

/// Empty where nothing can be read.
inline QByteArray bytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What lies below a folder, hidden files and those of its folders included.
inline Files filesBelow(const QString& folder, const QStringList& patterns = {}) {
  Files files;
  QDirIterator it(folder, patterns, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
  while (it.hasNext()) {
    const QString path = it.next();
    files.insert(QDir(folder).relativeFilePath(path), bytesOf(path));
  }
  return files;
}

/// Everything that was written to a temporary file, which is closed.
inline QByteArray drained(std::FILE* file) {
  std::rewind(file);
  QFile reader;
  const QByteArray bytes = reader.open(file, QIODevice::ReadOnly) ? reader.readAll() : QByteArray();
  std::fclose(file);
  return bytes;
}

}  // namespace veneerer::test
