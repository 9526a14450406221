// The batch tool by its command line, on a Skin in a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "skintool/batch.h"
#include "support/files.h"

namespace veneerer {

/// A folder with one Skin, S, and the batch tool run on it.
class BatchTest : public testing::Test {
protected:
  BatchTest() { QDir(root.path()).mkpath("Skins/S/images"); }

  QString skin() const { return path("Skins/S"); }
  QString path(const QString& name) const { return root.filePath(name); }

  int run(const QStringList& words) {
    std::FILE* outFile = std::tmpfile();
    std::FILE* errFile = std::tmpfile();
    const int status = runBatch(QStringList("skintool") + words, outFile, errFile);
    out = test::drained(outFile);
    err = test::drained(errFile);
    return status;
  }

  QTemporaryDir root;
  QByteArray out;
  QByteArray err;
};

}  // namespace veneerer
