// The batch tool by its command line, on a Skin in a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "skintool/batch.h"

namespace veneerer {

/// A folder with one Skin, S, and the batch tool run on it.
class BatchTest : public testing::Test {
protected:
  BatchTest() { QDir(root.path()).mkpath(QStringLiteral("Skins/S/images")); }

  QString skin() const { return root.path() + QStringLiteral("/Skins/S"); }
  QString path(const char* name) const { return root.path() + u'/' + QString::fromLatin1(name); }

  int run(QStringList words) {
    words.prepend(QStringLiteral("skintool"));
    std::FILE* outFile = std::tmpfile();
    std::FILE* errFile = std::tmpfile();
    const int status = runBatch(words, outFile, errFile);
    out = contents(outFile);
    err = contents(errFile);
    return status;
  }
  static QByteArray contents(std::FILE* file) {
    std::rewind(file);
    QFile reader;
    QByteArray bytes;
    if (reader.open(file, QIODevice::ReadOnly)) bytes = reader.readAll();
    std::fclose(file);
    return bytes;
  }
  void write(const QString& name, const QByteArray& bytes) {
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }

  QTemporaryDir root;
  QByteArray out;
  QByteArray err;
};

}  // namespace veneerer
