// Replacing files of a folder together, with every operation failing in turn.
#include "files/replacefiles.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QTemporaryDir>

namespace veneerer {
namespace {

/// Fails at one operation, or from it on as if the program had been killed there.
class FailingDisk : public Disk {
public:
  int countdown = -1;
  bool isKilled = false;
  int operations = 0;
  bool isFolderOpen = true;

  bool takesNewFiles(const QString&) override { return isFolderOpen; }
  QString create(const QString& path, const QByteArray& bytes, const QString& like) override {
    return fails() ? reason() : Disk::create(path, bytes, like);
  }
  QString overwrite(const QString& path, const QByteArray& bytes) override {
    return fails() ? reason() : Disk::overwrite(path, bytes);
  }
  QString rename(const QString& from, const QString& to) override {
    return fails() ? reason() : Disk::rename(from, to);
  }
  QString remove(const QString& path) override { return fails() ? reason() : Disk::remove(path); }

private:
  static QString reason() { return QStringLiteral("made to fail"); }
  bool fails() {
    ++operations;
    if (countdown > 0 && --countdown == 0) {
      if (!isKilled) countdown = -1;
      return true;
    }
    return countdown == 0;
  }
};

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
  QString refusal(const char* name) {
    return FileReplacement(disk, folder.path(), {{QString::fromLatin1(name), "new"}}).refusal();
  }
  void replace() {
    FileReplacement replacement(
        disk, folder.path(),
        {{QStringLiteral("a"), "new a"}, {QStringLiteral("b"), "new b"}, {QStringLiteral("c"), "new c"}});
    ASSERT_EQ(replacement.refusal(), QString());
    replacement.run();
  }
  static bool isOldOrNew(const QMap<QString, QByteArray>& files) {
    return (files[QStringLiteral("a")] == "old a" || files[QStringLiteral("a")] == "new a") &&
           (files[QStringLiteral("b")] == "old b" || files[QStringLiteral("b")] == "new b") &&
           (!files.contains(QStringLiteral("c")) || files[QStringLiteral("c")] == "new c");
  }

  FailingDisk disk;
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
    disk.countdown = at;
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
  disk.isKilled = true;
  disk.countdown = 5;
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
  disk.countdown = -1;
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
  for (const char* name : {"outer", "dangling", "sub", "pipe"})
    EXPECT_TRUE(refusal(name).startsWith(QString::fromLatin1(name))) << name;

  FileReplacement(disk, folder.path(), {{QStringLiteral("inner"), "new"}}).run();
  EXPECT_TRUE(QFileInfo(path("inner")).isSymLink());
  EXPECT_EQ(contents().value(QStringLiteral("a")), "new");
}

TEST_F(Replace, WritesInPlaceWhereTheFolderTakesNoNewFiles) {
  write("a", "old a, which is longer");
  disk.isFolderOpen = false;
  EXPECT_TRUE(refusal("c").startsWith(u'c'));
  FileReplacement(disk, folder.path(), {{QStringLiteral("a"), "new a"}}).run();
  EXPECT_EQ(contents(), (QMap<QString, QByteArray>{{QStringLiteral("a"), "new a"}}));
  EXPECT_EQ(disk.operations, 1);
}

TEST_F(Replace, TellsAFolderThatIsGone) {
  const QString gone = folder.path() + QStringLiteral("/gone");
  const FileReplacement replacement(disk, gone, {{QStringLiteral("a"), {}}});
  EXPECT_TRUE(replacement.refusal().contains(gone));
}

}  // namespace
}  // namespace veneerer
