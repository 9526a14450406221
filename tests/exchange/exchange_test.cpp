// Skins copied, packed and unpacked: what comes of it, with every operation failing and every step given up.
#include <sys/stat.h>

#include <functional>
#include <random>

#include "designer/skinfixture.h"
#include "exchange/archives.h"
#include "exchange/skincopy.h"
#include "exchange/skinpacking.h"
#include "exchange/skinunpacking.h"
#include "skin/skinsaver.h"

namespace veneerer {
namespace {

using test::Files;
using test::zipOf;

class Exchange : public test::SkinFixture {
protected:
  Exchange() {
    write("menu.ini", "1\r\n");
    write("search_choice.ini", "read");
    write("search_Choice.ini", "written");
    write("images/Men\u00fc.bmp", QByteArray("\x00\xff\r\n", 4));
    write("images/deep/er/large.bin", QByteArray(1'200'000, 'l'));
    write("images/none.gif", "");
    write(".hidden", "h");
    QDir().mkpath(path("empty/within"));
    write(".menu.ini.999999999-0123456789abcdef.saving", "left over");
  }

  Files contents() const {
    Files files = test::filesBelow(path({}));
    files.remove(".menu.ini.999999999-0123456789abcdef.saving");
    return files;
  }
  /// All names below the folder in which everything is made, those of folders included.
  QStringList everything() const {
    QStringList names;
    QDirIterator it(root.filePath("made"),
                    QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) names << it.next();
    return names;
  }
  QString made(const QString& name) const { return root.filePath("made/" + name); }
  QString archive(const QByteArray& bytes) const {
    test::writeBytes(root.filePath("a.zip"), bytes);
    return root.filePath("a.zip");
  }

  /// Why it fails, empty when it doesn't.
  static QString failure(const std::function<void()>& work) {
    try {
      work();
      return {};
    } catch (const ExchangeError& error) {
      return QString::fromUtf8(error.what());
    }
  }
  QString unpackFailure(const QByteArray& bytes, const ExchangeLimits& limits = {}) {
    return failure([&] { unpackSkin(world.disk, archive(bytes), made("Skins"), {}, limits); });
  }

  using Work = std::function<void(const GoOn&)>;
  /// What this test makes in the folder `made`, each once.
  std::vector<Work> works() {
    packSkin(world.disk, path({}), root.filePath("S.zip"));
    return {[&](const GoOn& goOn) { copySkin(state(), world.disk, path({}), made("a/b/Copy"), goOn); },
            [&](const GoOn& goOn) { packSkin(world.disk, path({}), made("S.zip"), goOn); },
            [&](const GoOn& goOn) { unpackSkin(world.disk, root.filePath("S.zip"), made("Skins"), goOn); }};
  }
  void clear() {
    QDir(root.filePath("made")).removeRecursively();
    QDir().mkpath(root.filePath("made"));
  }
};

TEST_F(Exchange, PackedAndUnpackedEveryByteComesBack) {
  EXPECT_TRUE(packSkin(world.disk, path({}), root.filePath("S.zip")).isEmpty());
  const QStringList names = test::entryNames(root.filePath("S.zip"));
  for (const QString& name : names) EXPECT_TRUE(name.startsWith("S/")) << name.toStdString();
  EXPECT_EQ(names.filter("saving").size(), 0);
  EXPECT_EQ(unpackSkin(world.disk, root.filePath("S.zip"), made("Skins")), "S");
  EXPECT_EQ(test::filesBelow(made("Skins/S")), contents());
  EXPECT_TRUE(QFileInfo(made("Skins/S/empty/within")).isDir());

  const QByteArray first = test::bytesOf(root.filePath("S.zip"));
  packSkin(world.disk, path({}), root.filePath("S.zip"));
  EXPECT_EQ(test::bytesOf(root.filePath("S.zip")), first) << "the same Skin gives the same archive";
}

TEST_F(Exchange, ACopyHasTheRecordsOfASaveAndAllElseAsItIs) {
  form1().Label39->setFontSize(31);
  copySkin(state(), world.disk, path({}), made("Copy"));
  Files expected = contents();
  for (const NewFile& file : composedRecords(state())) expected.insert(file.name, file.bytes);
  EXPECT_EQ(test::filesBelow(made("Copy")), expected);
  EXPECT_EQ(expected.value("search_choice.ini"), "read") << "no save writes this one";
  EXPECT_TRUE(QFileInfo(made("Copy/empty/within")).isDir());

  EXPECT_TRUE(
      failure([&] { copySkin(state(), world.disk, path({}), made("Copy")); }).contains("there already"));
  EXPECT_TRUE(failure([&] { copySkin(state(), world.disk, path({}), path("new/Copy")); }).contains("within"));
  EXPECT_FALSE(QFileInfo::exists(path("new")));
}

TEST_F(Exchange, FollowsLinksInsideTheFolderOnlyAndTellsWhatItLeavesOut) {
  test::writeBytes(root.filePath("secret"), "secret");
  QFile::link(root.filePath("secret"), path("out.txt"));
  QFile::link(root.path(), path("images/out"));
  QFile::link(path("images"), path("Images"));
  QFile::link("nowhere", path("dangling"));
  QFile::link(path("menu.ini"), path("inside.txt"));
  ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
  const auto names = [](const QList<LeftOut>& leftOut) {
    QStringList all;
    for (const LeftOut& left : leftOut) all << left.name;
    return all;
  };
  const QStringList expected{"Images", "dangling", "images/out", "out.txt", "pipe"};
  EXPECT_EQ(names(copySkin(state(), world.disk, path({}), made("Copy"))), expected);
  EXPECT_EQ(names(packSkin(world.disk, path({}), root.filePath("S.zip"))), expected);
  EXPECT_EQ(test::bytesOf(made("Copy/inside.txt")), "1\r\n");
  EXPECT_FALSE(QFileInfo(made("Copy/inside.txt")).isSymLink());
  for (const QString& name : expected) EXPECT_FALSE(QFileInfo::exists(made("Copy/" + name)));
  unpackSkin(world.disk, root.filePath("S.zip"), made("Skins"));
  EXPECT_FALSE(test::filesBelow(made("Skins")).values().contains("secret"));
}

TEST_F(Exchange, ACopyIsItsOwnersToWriteAndNobodyElsesThanBefore) {
  ASSERT_EQ(::chmod(QFile::encodeName(path(".hidden")).constData(), 04500), 0);
  copySkin(state(), world.disk, path({}), made("Copy"));
  struct stat status {};
  ASSERT_EQ(::stat(QFile::encodeName(made("Copy/.hidden")).constData(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777u, 0700u);
}

TEST_F(Exchange, NothingIsLeftOfWorkThatIsGivenUpAtAnyStep) {
  for (const Work& work : works()) {
    clear();
    int steps = 0;
    int last = -1;
    bool isForward = true;
    work([&](int done, int total, const QString&) {
      ++steps;
      isForward = isForward && done >= last && done <= total;
      last = done;
      return true;
    });
    EXPECT_GT(steps, 8);
    EXPECT_TRUE(isForward);
    EXPECT_FALSE(everything().isEmpty());
    for (int at = 1; at <= steps; ++at) {
      clear();
      int step = 0;
      EXPECT_THROW(work([&](int, int, const QString&) { return ++step < at; }), GivenUp);
      EXPECT_EQ(everything(), QStringList());
    }
  }
}

TEST_F(Exchange, NothingIsLeftOfWorkWhoseDiskFailsAtAnyOperation) {
  for (const Work& work : works()) {
    clear();
    world.disk.failAt(0);
    work({});
    const int operations = world.disk.operations;
    EXPECT_GT(operations, 2);
    for (int at = 1; at <= operations; ++at) {
      clear();
      world.disk.failAt(at);
      EXPECT_TRUE(failure([&] { work({}); }).endsWith("made to fail")) << at;
      EXPECT_EQ(everything(), QStringList()) << at;
    }
    clear();
    world.disk.killAt(operations);
    EXPECT_FALSE(failure([&] { work({}); }).isEmpty());
    for (const QString& name : QDir(made({})).entryList())
      EXPECT_TRUE(name == "." || name == ".." || name == "a" || name == "Skins");
  }
}

TEST_F(Exchange, WhatAKilledProgramLeftIsRemovedByTheNext) {
  const QString left = "Skins/.S.999999999-0123456789abcdef.saving";
  test::writeBytes(made(left + "/images/x"), "left over");
  test::writeBytes(root.filePath("kept"), "kept");
  QFile::link(root.path(), made(left + "/link"));
  test::writeBytes(made("Skins/.mine.saving/x"), "somebody else's");
  const QString archive = root.filePath(".S.zip.999999999-0123456789abcdef.saving");
  test::writeBytes(archive, "half an archive");
  packSkin(world.disk, path({}), root.filePath("S.zip"));
  EXPECT_FALSE(QFileInfo::exists(archive));
  unpackSkin(world.disk, root.filePath("S.zip"), made("Skins"));
  EXPECT_FALSE(QFileInfo::exists(made(left)));
  EXPECT_TRUE(QFileInfo::exists(made("Skins/.mine.saving/x")));
  EXPECT_TRUE(QFileInfo::exists(root.filePath("kept")));
}

TEST_F(Exchange, ArchivesThatAreNotOneSkinAreRefusedWhole) {
  const test::ZipEntry good{"T/menu.ini"};
  const struct {
    QList<test::ZipEntry> entries;
    const char* entry;   ///< that is named
    const char* reason;  ///< a part of it
  } cases[] = {
      {{good, {"/etc/x"}}, "/etc/x", "absolute"},
      {{good, {"\\x"}}, "\\x", "absolute"},
      {{good, {"T/../../x"}}, "T/../../x", "out of"},
      {{good, {"T\\..\\x"}}, "T\\..\\x", "out of"},
      {{good, {"../T/x"}}, "../T/x", "out of"},
      {{good, {"T/.."}}, "T/..", "out of"},
      {{good, {"C:/x"}}, "C:/x", "drive"},
      {{good, {"T/c:x"}}, "T/c:x", "drive"},
      {{good, {"T//x"}}, "T//x", "empty"},
      {{good, {"T/./x"}}, "T/./x", "point"},
      {{good, {"T/a\nb"}}, "T/a?b", "printable"},
      {{good, {"T/a\x1b[2J"}}, "T/a?[2J", "printable"},
      {{good, {QString("T/") + QChar(0x202e) + "x"}}, "T/?x", "printable"},
      {{good, {"T/" + QString(256, 'n')}}, "T/nnn", "too long"},
      {{good, {"T/" + QString("d/").repeated(1500) + "x"}}, "T/d/d", "too long"},
      {{good, {"U/menu.ini"}}, "U/menu.ini", "second folder"},
      {{good, {"t/menu.ini"}}, "t/menu.ini", "second folder"},
      {{good, {"readme.txt"}}, "readme.txt", "at the top"},
      {{{".T/x"}}, ".T/x", "point"},
      {{good, {"T/menu.ini"}}, "T/menu.ini", "second file"},
      {{good, {"T/Menu.INI"}}, "T/Menu.INI", "second file"},
      {{{"T/images/a"}, {"T/Images/b"}}, "T/Images/b", "case alone"},
      {{{"T/images"}, {"T/images/b"}}, "T/images/b", "a file of"},
      {{{"T/images/b"}, {"T/images"}}, "T/images", "a folder of"},
      {{good, {"T/link", "/etc/passwd", 0120777}}, "T/link", "link"},
      {{good, {"T/pipe", "x", 0010600}}, "T/pipe", "no plain file"},
      {{good, {"T/device", "x", 0020600}}, "T/device", "no plain file"},
      {{good, {"T/folder", "x", 0040755}}, "T/folder", "no plain file"},
      {{good, {"T/secret", "x", 0, "password"}}, "T/secret", "encrypted"},
      {{good, {"T/folder/", "bytes"}}, "T/folder/", "bytes"},
      {{}, "a.zip", "no zip archive"},
  };
  for (const auto& c : cases) {
    clear();
    const QString failure = unpackFailure(zipOf(c.entries));
    EXPECT_TRUE(failure.contains(c.entry) && failure.contains("a.zip") && failure.contains(c.reason))
        << c.entry << ": " << failure.toStdString();
    EXPECT_FALSE(failure.contains('\n'));
    EXPECT_EQ(everything(), QStringList()) << c.entry;
    EXPECT_FALSE(QFileInfo::exists("/etc/x"));
  }
  QByteArray cut = zipOf({good, {"T/a.bmp.exe"}});
  EXPECT_TRUE(unpackFailure(cut.replace("a.bmp.exe", QByteArray("a.bmp\0exe", 9))).contains("printable"));
  EXPECT_EQ(everything(), QStringList());
}

TEST_F(Exchange, ASkinThatIsThereAlreadyStays) {
  for (const char* name : {"Skins/T/menu.ini", "Skins/T"}) {
    clear();
    test::writeBytes(made(name), "mine");
    EXPECT_TRUE(unpackFailure(zipOf({{"T/menu.ini"}, {"T/x"}})).contains("there already"));
    EXPECT_EQ(test::filesBelow(made({})).values(), QList<QByteArray>{"mine"});
  }
  clear();
  QDir().mkpath(made("Skins"));
  QFile::link("nowhere", made("Skins/T"));
  EXPECT_TRUE(unpackFailure(zipOf({{"T/menu.ini"}})).contains("there already"));
}

TEST_F(Exchange, BytesAndFilesAreCountedAsTheyCome) {
  const ExchangeLimits limits{3, 4'000'000};
  const auto exactly = zipOf({{"T/a", QByteArray(4'000'000, '\0')}, {"T/b", {}}, {"T/c", {}}});
  EXPECT_EQ(unpackFailure(exactly, limits), QString());
  const QList<test::ZipEntry> bombs[] = {
      {{"U/a"}, {"U/b"}, {"U/c"}, {"U/d"}},
      {{"U/a"}, {"U/1/2/3/4/b"}},
      {{"U/a", QByteArray(4'000'001, '\0')}},
      {{"U/a", QByteArray(2'000'000, '\0')}, {"U/b", QByteArray(2'000'001, '\0')}},
      QList<test::ZipEntry>(7, {"U/folder/", {}}),
  };
  for (const auto& bomb : bombs) EXPECT_TRUE(unpackFailure(zipOf(bomb), limits).contains("more than"));

  // One whose headers say that it is small.
  QByteArray liar = zipOf({{"U/a", QByteArray(5'000'000, '\0')}});
  const auto size = [](quint32 bytes) { return QByteArray(reinterpret_cast<const char*>(&bytes), 4); };
  ASSERT_TRUE(liar.contains(size(5'000'000)));
  EXPECT_TRUE(unpackFailure(liar.replace(size(5'000'000), size(10)), limits).contains("damaged"));
  EXPECT_EQ(QDir(made("Skins")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList{"T"});

  const auto packed = [&](const ExchangeLimits& most) {
    return failure([&] { packSkin(world.disk, path({}), root.filePath("S.zip"), {}, most); });
  };
  EXPECT_TRUE(packed({1, 1 << 30}).contains("more than 1 files"));
  EXPECT_TRUE(packed({100, 1024 * 1024}).contains("more than 1 MiB"));
  EXPECT_FALSE(QFileInfo::exists(root.filePath("S.zip")));
}

// Whatever is broken: the Skin is there whole, or nothing is.
TEST_F(Exchange, ADamagedArchiveIsRefusedOrUnpackedWhole) {
  const QByteArray good = zipOf({{"T/", {}}, {"T/a", QByteArray(300, 'a')}, {"T/images/b", "bytes of b"}});
  clear();
  ASSERT_EQ(unpackFailure(good), QString());
  const Files whole = test::filesBelow(made("Skins/T"));
  std::mt19937 random(7);
  int refused = 0;
  for (int i = 0; i < 200; ++i) {
    clear();
    QByteArray bytes = good;
    const auto at = static_cast<qsizetype>(random() % static_cast<std::size_t>(bytes.size()));
    if (i % 4 == 0)
      bytes.truncate(at);
    else
      bytes[at] = static_cast<char>(bytes[at] ^ (1 << random() % 8));
    const QString failure = unpackFailure(bytes);
    if (!failure.isEmpty()) {
      ++refused;
      EXPECT_EQ(everything(), QStringList()) << i;
      continue;
    }
    // Names and times aren't part of any sum.
    const QList<QByteArray> got = test::filesBelow(made({})).values();
    EXPECT_EQ(QSet(got.begin(), got.end()), (QSet<QByteArray>{whole["a"], whole["images/b"]})) << i;
  }
  EXPECT_GT(refused, 100);
}

TEST_F(Exchange, PacksNothingThatCouldNotBeUnpacked) {
  const auto packed = [&] {
    return failure([&] { packSkin(world.disk, path({}), root.filePath("S.zip")); });
  };
  for (const char* name : {"images/a\\b", "images/a\tb", "images/NONE.gif", "C:x"}) {
    write(name, "x");
    EXPECT_TRUE(packed().contains("S.zip: S/")) << name;
    QFile::remove(path(name));
  }
  EXPECT_EQ(packed(), QString());
  test::writeBytes(root.filePath("S.zip"), "old");
  write("a\\b", "x");
  EXPECT_FALSE(packed().isEmpty());
  EXPECT_EQ(test::bytesOf(root.filePath("S.zip")), "old");
}

}  // namespace
}  // namespace veneerer
