// Replacing files of a folder together, with every operation failing in turn.
#include "files/replacefiles.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <functional>
#include <thread>

#include "files/plainfile.h"
#include "support/failingdisk.h"
#include "support/files.h"

namespace veneerer {
namespace {

using test::Files;

class Replace : public testing::Test {
protected:
  QString path(const QString& name) const { return folder.filePath(name); }
  void writeOld() const {
    write("a", "old a");
    write("b", "old b");
  }
  void write(const char* name, const QByteArray& bytes) const { test::writeBytes(path(name), bytes); }
  Files contents() const { return test::filesBelow(folder.path()); }
  /// Why a file of that name can't be written, empty when it can.
  QString refusal(const QString& name) {
    const FileReplacement replacement(disk, folder.path(), {{name, "new"}});
    if (!replacement.refusal()) return {};
    EXPECT_EQ(replacement.refusal()->name, name);
    return replacement.refusal()->reason;
  }
  void replace() {
    FileReplacement replacement(disk, folder.path(), {{"a", "new a"}, {"b", "new b"}, {"c", "new c"}});
    ASSERT_FALSE(replacement.refusal());
    replacement.run();
  }
  static bool isOldOrNew(const Files& files) {
    return (files["a"] == "old a" || files["a"] == "new a") &&
           (files["b"] == "old b" || files["b"] == "new b") &&
           (!files.contains("c") || files["c"] == "new c");
  }

  test::FailingDisk disk;
  QTemporaryDir folder;
};

TEST_F(Replace, LeavesEachFileWholeWhateverFails) {
  writeOld();
  replace();
  const int operations = disk.operations;
  ASSERT_EQ(operations, 6);
  for (int at = 1; at <= operations; ++at) {
    QFile::remove(path("c"));
    writeOld();
    disk.failAt(at);
    EXPECT_THROW(replace(), ReplaceError) << at;
    const auto files = contents();
    EXPECT_TRUE(isOldOrNew(files)) << at;
    // Up to the third operation nothing is in place; nothing that stood beside is left.
    EXPECT_EQ(files.value("a"), at <= 4 ? "old a" : "new a") << at;
    EXPECT_LE(files.size(), 3) << at;
  }
}

TEST_F(Replace, SurvivesBeingKilledAndClearsUpTheNextTime) {
  writeOld();
  disk.killAt(5);
  EXPECT_THROW(replace(), ReplaceError);
  EXPECT_TRUE(isOldOrNew(contents()));
  QString left;
  for (const QString& name : contents().keys())
    if (isLeftOver(name)) left = name;
  ASSERT_FALSE(left.isEmpty());
  // As if another process had left it, which is no more.
  QString foreign = left;
  foreign.replace(QString::number(::getpid()) + u'-', "999999999-");
  ASSERT_TRUE(isLeftOver(foreign));
  QFile::rename(folder.path() + u'/' + left, folder.path() + u'/' + foreign);
  disk.failAt(0);
  replace();
  EXPECT_FALSE(contents().contains(foreign));
  EXPECT_EQ(contents().value("c"), "new c");
}

TEST_F(Replace, KeepsPermissionsAndReplacesHardLinks) {
  writeOld();
  QFile::setPermissions(path("a"), QFile::ReadOwner | QFile::WriteOwner);
  ASSERT_EQ(::link(QFile::encodeName(path("b")).constData(), QFile::encodeName(path("twin")).constData()), 0);
  replace();
  EXPECT_EQ(QFile::permissions(path("a")) & 0x0077, QFile::Permissions());
  EXPECT_EQ(contents().value("twin"), "old b");
  EXPECT_EQ(contents().value("b"), "new b");
}

TEST_F(Replace, FollowsLinksInsideTheFolderOnly) {
  QTemporaryDir elsewhere;
  QFile outside(elsewhere.path() + "/x");
  ASSERT_TRUE(outside.open(QIODevice::WriteOnly));
  outside.close();
  write("a", "old a");
  QFile::link("a", path("inner"));
  QFile::link(outside.fileName(), path("outer"));
  QFile::link("nothing", path("dangling"));
  QDir(folder.path()).mkdir("sub");
  ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
  EXPECT_EQ(refusal("inner"), QString());
  EXPECT_TRUE(refusal("outer").contains("outside the folder"));
  EXPECT_EQ(refusal("dangling"), "the file is a link that leads nowhere");
  for (const char* name : {"sub", "pipe"})
    EXPECT_EQ(refusal(name), "there is something under this name that is no file");

  FileReplacement(disk, folder.path(), {{"inner", "new"}}).run();
  EXPECT_TRUE(QFileInfo(path("inner")).isSymLink());
  EXPECT_EQ(contents().value("a"), "new");
}

TEST_F(Replace, WritesInPlaceWhereTheFolderTakesNoNewFiles) {
  write("a", "old a, which is longer");
  disk.isFolderOpen = false;
  EXPECT_EQ(refusal("c"), u"the folder takes no new files");
  FileReplacement(disk, folder.path(), {{"a", "new a"}}).run();
  EXPECT_EQ(contents(), (Files{{"a", "new a"}}));
  EXPECT_EQ(disk.operations, 1);
}

TEST_F(Replace, NeedsAFolderInAFoldersPlace) {
  write("b", "old b");
  for (const char* name : {"gone/a", "b/a"}) EXPECT_NE(refusal(name), QString()) << name;
}

TEST_F(Replace, GoesBelowItsFolderAndNeverOutOfIt) {
  QTemporaryDir elsewhere;
  QDir(folder.path()).mkdir("sub");
  QFile::link(elsewhere.path(), path("out"));
  QFile::link(path("sub"), path("in"));
  for (const char* name : {"out/new", "../new", "sub/../../new"})
    EXPECT_TRUE(refusal(name).contains("outside")) << name;
  EXPECT_NE(refusal(elsewhere.filePath("new")), QString());
  FileReplacement(disk, folder.path(), {{"in/x", "x"}, {path("sub/y"), "y"}}).run();
  EXPECT_EQ(QDir(path("sub")).entryList(QDir::Files | QDir::Hidden), (QStringList{"x", "y"}));
}

TEST_F(Replace, TakesEveryNameThatAFileCanHave) {
  EXPECT_EQ(refusal(QString(256, u'x')), u"the name is too long for a file");
  EXPECT_NE(refusal(QString(128, u'\u00e9')), QString()) << "bytes count, not characters";
  for (const QString& name :
       QStringList{QString(255, 'x'), QString(127, u'\u00e9'), "%1 %2 %3.cov", "a\nb"}) {
    FileReplacement(disk, folder.path(), {{name, "new"}}).run();
    EXPECT_EQ(contents().value(name), "new");
    disk.killAt(2);
    EXPECT_THROW(FileReplacement(disk, folder.path(), {{name, "newer"}}).run(), ReplaceError);
    disk.failAt(0);
    const auto files = contents().keys();
    EXPECT_EQ(std::ranges::count_if(files, isLeftOver), 1) << name.toStdString();
    for (const QString& file : files) QFile::remove(folder.filePath(file));
  }
}

/// Runs that as a user who owns nothing here, in a process of its own; true when it says so.
bool asStranger(const std::function<bool()>& act) {
  constexpr uid_t kNobody = 65534;
  const pid_t child = ::fork();
  if (child == 0) ::_exit(::setuid(kNobody) == 0 && act() ? 0 : 1);
  int status = -1;
  return ::waitpid(child, &status, 0) == child && status == 0;
}

TEST_F(Replace, WritesInPlaceWhatAStrangerMayWriteAndNotReplace) {
  if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can become another user";
  const auto mode = [&](const QString& of, mode_t bits) { ::chmod(QFile::encodeName(of).constData(), bits); };
  const auto writeA = [&](const char* bytes) {
    FileReplacement replacement(disk, folder.path(), {{"a", bytes}});
    if (replacement.refusal()) return false;
    replacement.run();
    return true;
  };
  write("a", "old a");
  for (const mode_t closed : {0755, 01777}) {
    mode(folder.path(), closed);
    mode(path("a"), 0666);
    EXPECT_TRUE(asStranger([&] { return writeA("new"); })) << closed;
    EXPECT_EQ(contents().value("a"), "new");
    write("a", "old a");
    mode(path("a"), 0644);
    EXPECT_FALSE(asStranger([&] { return writeA("never"); })) << closed;
    EXPECT_EQ(contents().value("a"), "old a");
  }
}

// Each writes files of one letter only, and of a length of its own.
void saveOften(const QString& folder, char letter, qsizetype size) {
  Disk disk;
  for (int i = 0; i < 150; ++i)
    FileReplacement(disk, folder, {{"a", QByteArray(size, letter)}, {"b", QByteArray(size, letter)}}).run();
}

TEST_F(Replace, TwoProcessesThatSaveAndOneThatReadsNeverMeetHalfAFile) {
  constexpr qsizetype kOne = 200'000;
  constexpr qsizetype kOther = 90'000;
  saveOften(folder.path(), 'x', kOne);
  const pid_t child = ::fork();
  if (child == 0) {
    try {
      saveOften(folder.path(), 'y', kOther);
      ::_exit(0);
    } catch (...) {
      ::_exit(1);
    }
  }
  std::thread saver([&] { EXPECT_NO_THROW(saveOften(folder.path(), 'x', kOne)); });
  int status = -1;
  QString refused;
  while (::waitpid(child, &status, WNOHANG) == 0)
    for (const char* name : {"a", "b"}) {
      const FileContent read = readFileInside(folder.path(), path(name), kOne);
      const QByteArray bytes = read.bytes;
      refused += read.reason;
      EXPECT_TRUE(bytes == QByteArray(kOne, 'x') || bytes == QByteArray(kOther, 'y')) << bytes.size();
    }
  saver.join();
  EXPECT_EQ(status, 0);
  EXPECT_EQ(refused.toStdString(), "");
  EXPECT_EQ(contents().keys(), (QStringList{"a", "b"}));
}

}  // namespace
}  // namespace veneerer
