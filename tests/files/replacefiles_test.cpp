// Replacing files of a folder together, with every operation failing in turn.
#include "files/replacefiles.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QTemporaryDir>
#include <algorithm>
#include <functional>
#include <thread>

#include "files/plainfile.h"
#include "support/failingdisk.h"

namespace veneerer {
namespace {

class Replace : public testing::Test {
protected:
  QString path(const char* name) const { return folder.path() + u'/' + QString::fromLatin1(name); }
  void write(const char* name, const QByteArray& bytes) const {
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  QMap<QString, QByteArray> contents() const {
    QMap<QString, QByteArray> files;
    for (const QString& name : QDir(folder.path()).entryList(QDir::Files | QDir::Hidden)) {
      QFile file(folder.path() + u'/' + name);
      if (file.open(QIODevice::ReadOnly)) files.insert(name, file.readAll());
    }
    return files;
  }
  /// Why a file of that name can't be written, empty when it can.
  QString refusal(const QString& name) {
    const FileReplacement replacement(disk, folder.path(), {{name, "new"}});
    if (!replacement.refusal()) return {};
    EXPECT_EQ(replacement.refusal()->name, name);
    return replacement.refusal()->reason;
  }
  QString refusal(const char* name) { return refusal(QString::fromLatin1(name)); }
  void replace() {
    FileReplacement replacement(
        disk, folder.path(),
        {{QStringLiteral("a"), "new a"}, {QStringLiteral("b"), "new b"}, {QStringLiteral("c"), "new c"}});
    ASSERT_FALSE(replacement.refusal());
    replacement.run();
  }
  static bool isOldOrNew(const QMap<QString, QByteArray>& files) {
    return (files[QStringLiteral("a")] == "old a" || files[QStringLiteral("a")] == "new a") &&
           (files[QStringLiteral("b")] == "old b" || files[QStringLiteral("b")] == "new b") &&
           (!files.contains(QStringLiteral("c")) || files[QStringLiteral("c")] == "new c");
  }

  test::FailingDisk disk;
  QTemporaryDir folder;
};

TEST_F(Replace, LeavesEachFileWholeWhateverFails) {
  write("a", "old a");
  write("b", "old b");
  replace();
  const int operations = disk.operations;
  ASSERT_EQ(operations, 6);
  for (int at = 1; at <= operations; ++at) {
    QFile::remove(path("c"));
    write("a", "old a");
    write("b", "old b");
    disk.failAt(at);
    EXPECT_THROW(replace(), ReplaceError) << at;
    const auto files = contents();
    EXPECT_TRUE(isOldOrNew(files)) << at;
    // Up to the third operation nothing is in place; nothing that stood beside is left.
    EXPECT_EQ(files.value(QStringLiteral("a")), at <= 4 ? "old a" : "new a") << at;
    EXPECT_LE(files.size(), 3) << at;
  }
}

TEST_F(Replace, SurvivesBeingKilledAndClearsUpTheNextTime) {
  write("a", "old a");
  write("b", "old b");
  disk.killAt(5);
  EXPECT_THROW(replace(), ReplaceError);
  EXPECT_TRUE(isOldOrNew(contents()));
  QString left;
  for (const QString& name : contents().keys())
    if (isLeftOver(name)) left = name;
  ASSERT_FALSE(left.isEmpty());
  // As if another process had left it, which is no more.
  QString foreign = left;
  foreign.replace(QString::number(::getpid()) + u'-', QStringLiteral("999999999-"));
  ASSERT_TRUE(isLeftOver(foreign));
  QFile::rename(folder.path() + u'/' + left, folder.path() + u'/' + foreign);
  disk.failAt(0);
  replace();
  EXPECT_FALSE(contents().contains(foreign));
  EXPECT_EQ(contents().value(QStringLiteral("c")), "new c");
}

TEST_F(Replace, KeepsPermissionsAndReplacesHardLinks) {
  write("a", "old a");
  write("b", "old b");
  QFile::setPermissions(path("a"), QFile::ReadOwner | QFile::WriteOwner);
  ASSERT_EQ(::link(QFile::encodeName(path("b")).constData(), QFile::encodeName(path("twin")).constData()), 0);
  replace();
  EXPECT_EQ(QFile::permissions(path("a")) & 0x0077, QFile::Permissions());
  EXPECT_EQ(contents().value(QStringLiteral("twin")), "old b");
  EXPECT_EQ(contents().value(QStringLiteral("b")), "new b");
}

TEST_F(Replace, FollowsLinksInsideTheFolderOnly) {
  QTemporaryDir elsewhere;
  QFile outside(elsewhere.path() + QStringLiteral("/x"));
  ASSERT_TRUE(outside.open(QIODevice::WriteOnly));
  outside.close();
  write("a", "old a");
  QFile::link(QStringLiteral("a"), path("inner"));
  QFile::link(outside.fileName(), path("outer"));
  QFile::link(QStringLiteral("nothing"), path("dangling"));
  QDir(folder.path()).mkdir(QStringLiteral("sub"));
  ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
  EXPECT_EQ(refusal("inner"), QString());
  for (const char* name : {"outer", "dangling", "sub", "pipe"}) EXPECT_NE(refusal(name), QString()) << name;

  FileReplacement(disk, folder.path(), {{QStringLiteral("inner"), "new"}}).run();
  EXPECT_TRUE(QFileInfo(path("inner")).isSymLink());
  EXPECT_EQ(contents().value(QStringLiteral("a")), "new");
}

TEST_F(Replace, WritesInPlaceWhereTheFolderTakesNoNewFiles) {
  write("a", "old a, which is longer");
  disk.isFolderOpen = false;
  EXPECT_EQ(refusal("c"), u"the folder takes no new files");
  FileReplacement(disk, folder.path(), {{QStringLiteral("a"), "new a"}}).run();
  EXPECT_EQ(contents(), (QMap<QString, QByteArray>{{QStringLiteral("a"), "new a"}}));
  EXPECT_EQ(disk.operations, 1);
}

TEST_F(Replace, TellsAFolderThatIsGone) {
  const QString gone = folder.path() + QStringLiteral("/gone");
  const FileReplacement replacement(disk, gone, {{QStringLiteral("a"), {}}});
  ASSERT_TRUE(replacement.refusal());
  EXPECT_TRUE(replacement.refusal()->reason.contains(gone));
  EXPECT_NE(refusal("gone/a"), QString());
  write("b", "old b");
  EXPECT_NE(refusal("b/a"), QString()) << "a file in a folder's place";
}

TEST_F(Replace, GoesBelowItsFolderAndNeverOutOfIt) {
  QTemporaryDir elsewhere;
  QDir(folder.path()).mkdir(QStringLiteral("sub"));
  QFile::link(elsewhere.path(), path("out"));
  QFile::link(path("sub"), path("in"));
  for (const char* name : {"out/new", "../new", "sub/../../new"})
    EXPECT_TRUE(refusal(name).contains(QStringLiteral("outside"))) << name;
  EXPECT_NE(refusal(elsewhere.filePath(QStringLiteral("new"))), QString());
  FileReplacement(disk, folder.path(), {{QStringLiteral("in/x"), "x"}, {path("sub/y"), "y"}}).run();
  EXPECT_EQ(QDir(path("sub")).entryList(QDir::Files | QDir::Hidden),
            (QStringList{QStringLiteral("x"), QStringLiteral("y")}));
}

TEST_F(Replace, TakesEveryNameThatAFileCanHave) {
  EXPECT_EQ(refusal(QString(256, u'x')), u"the name is too long for a file");
  EXPECT_NE(refusal(QString(128, u'\u00e9')), QString()) << "bytes count, not characters";
  for (const QString& name : {QString(255, u'x'), QString(127, u'\u00e9'), QStringLiteral("%1 %2 %3.cov"),
                              QStringLiteral("a\nb")}) {
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
    FileReplacement replacement(disk, folder.path(), {{QStringLiteral("a"), bytes}});
    if (replacement.refusal()) return false;
    replacement.run();
    return true;
  };
  write("a", "old a");
  for (const mode_t closed : {0755, 01777}) {
    mode(folder.path(), closed);
    mode(path("a"), 0666);
    EXPECT_TRUE(asStranger([&] { return writeA("new"); })) << closed;
    EXPECT_EQ(contents().value(QStringLiteral("a")), "new");
    write("a", "old a");
    mode(path("a"), 0644);
    EXPECT_FALSE(asStranger([&] { return writeA("never"); })) << closed;
    EXPECT_EQ(contents().value(QStringLiteral("a")), "old a");
  }
}

// Each writes files of one letter only, and of a length of its own.
void saveOften(const QString& folder, char letter, qsizetype size) {
  Disk disk;
  for (int i = 0; i < 150; ++i)
    FileReplacement(
        disk, folder,
        {{QStringLiteral("a"), QByteArray(size, letter)}, {QStringLiteral("b"), QByteArray(size, letter)}})
        .run();
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
  while (::waitpid(child, &status, WNOHANG) == 0)
    for (const char* name : {"a", "b"}) {
      const QByteArray bytes = readPlainFile(path(name), kOne).bytes;
      EXPECT_TRUE(bytes == QByteArray(kOne, 'x') || bytes == QByteArray(kOther, 'y')) << bytes.size();
    }
  saver.join();
  EXPECT_EQ(status, 0);
  EXPECT_EQ(contents().keys(), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
}

}  // namespace
}  // namespace veneerer
