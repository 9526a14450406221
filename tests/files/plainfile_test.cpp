// Reading what a stranger put under a file's name.
#include "files/plainfile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "support/pictures.h"

namespace veneerer {
namespace {

using Outcome = FileContent::Outcome;

class PlainFile : public testing::Test {
protected:
  PlainFile() {
    QDir(root.path()).mkpath("Skin/images");
    test::writeBytes(at("Skin/a.ini"), "plain");
    test::writeBytes(at("secret"), "secret");
  }
  QString at(const char* name) const { return root.filePath(QString::fromLatin1(name)); }
  FileContent inside(const char* name, qint64 most = 100) const {
    return readFileInside(at("Skin"), at(name), most);
  }
  static std::string reason(const FileContent& file) {
    EXPECT_EQ(file.outcome, Outcome::Refused);
    EXPECT_TRUE(file.bytes.isEmpty());
    return file.reason.toStdString();
  }

  QTemporaryDir root;
};

TEST_F(PlainFile, IsReadWholeUpToItsBound) {
  EXPECT_EQ(inside("Skin/a.ini", 5).bytes, "plain");
  EXPECT_EQ(reason(inside("Skin/a.ini", 4)), "the file is too large");
  test::writeBytes(at("Skin/empty.ini"), "");
  EXPECT_TRUE(inside("Skin/empty.ini").isRead());
  const QByteArray large(3'500'000, 'x');
  test::writeBytes(at("Skin/large.ini"), large);
  EXPECT_EQ(inside("Skin/large.ini", large.size()).bytes, large);
  EXPECT_EQ(inside("Skin/none.ini").outcome, Outcome::Missing);
  EXPECT_EQ(inside("Skin/a.ini/none.ini").outcome, Outcome::Missing);
}

TEST_F(PlainFile, EverythingElseUnderItsNameIsRefused) {
  ASSERT_EQ(::mkfifo(QFile::encodeName(at("Skin/pipe")).constData(), 0600), 0);
  QFile::link(at("Skin/pipe"), at("Skin/to-pipe"));
  QFile::link("/dev/zero", at("Skin/device"));
  for (const char* name : {"Skin/pipe", "Skin/to-pipe", "Skin/device", "Skin/images"}) {
    EXPECT_EQ(reason(inside(name)), "there is something under this name that is no file") << name;
    EXPECT_TRUE(headOfFile(at(name), 8).isEmpty()) << name;
  }
  QFile::link(at("nowhere"), at("Skin/dangling"));
  EXPECT_EQ(reason(inside("Skin/dangling")), "the file is a link that leads nowhere");
  QFile::link(at("Skin/circle"), at("Skin/circle"));
  EXPECT_EQ(inside("Skin/circle").outcome, Outcome::Refused);
}

// Such a file is a plain one to the system, tells a size of 0 and goes on for gigabytes, eight bytes at a
// time.
TEST_F(PlainFile, AFileWithoutEndIsReadNoFurtherThanItsBound) {
  const QString endless = "/proc/self/pagemap";
  if (headOfFile(endless, 8).isEmpty()) GTEST_SKIP() << "this system has none";
  EXPECT_EQ(reason(readPlainFile(endless, 99'999)), "the file is too large");
  EXPECT_EQ(headOfFile(endless, 64).size(), 64);
}

TEST_F(PlainFile, OnlyWhatLiesInTheFolderIsReadFromIt) {
  QFile::link(at("secret"), at("Skin/out.ini"));
  QFile::link(root.path(), at("Skin/up"));
  QFile::link(at("Skin/a.ini"), at("Skin/images/in.ini"));
  for (const char* name : {"Skin/out.ini", "Skin/up/secret", "Skin/../secret", "secret"})
    EXPECT_EQ(reason(inside(name)), "the file lies outside the Skin's folder") << name;
  EXPECT_EQ(readPlainFile(at("Skin/out.ini"), 100).bytes, "secret");
  EXPECT_EQ(inside("Skin/images/in.ini").bytes, "plain");
  EXPECT_EQ(inside("Skin/up/Skin/a.ini").bytes, "plain");
  QFile::link(at("Skin"), at("Linked"));
  EXPECT_EQ(readFileInside(at("Linked"), at("Linked/a.ini"), 100).bytes, "plain");
  QDir(root.path()).mkpath("Skin2");
  test::writeBytes(at("Skin2/a.ini"), "other");
  EXPECT_EQ(inside("Skin2/a.ini").outcome, Outcome::Refused) << "a name alike is no folder inside";
}

}  // namespace
}  // namespace veneerer
