// Commands on several Skins: what comes of them is what comes of one after the other.
#include <gtest/gtest.h>

#include "skintool/batchrun.h"
#include "skintool/sidebyside.h"

namespace veneerer {
namespace {

class Several : public BatchTest {
protected:
  Several() {
    for (const char* name : {"A", "-b", "C"}) QDir(root.path()).mkpath(QStringLiteral("Skins/") + name);
    test::writeBytes(path("Skins/A/menu.ini"), "INI Version\r\n 2 \r\n 10 \r\nwide\r\n");
    test::writeBytes(path("Skins/A/filter.ini"), "\\images\\gone.bmp\r\n");
  }

  QStringList skins() const { return {path("Skins/A"), path("Skins/-b"), path("Skins/C")}; }

  /// As the program itself does it, in processes.
  int runProgram(const QStringList& words) {
    std::FILE* outFile = std::tmpfile();
    std::FILE* errFile = std::tmpfile();
    const int status = runBatch(QStringList("skintool") + words, outFile, errFile,
                                QStringLiteral(VENEERER_BINARY_DIR "/src/skintool"));
    out = test::drained(outFile);
    err = test::drained(errFile);
    return status;
  }
};

TEST_F(Several, AreCheckedSideBySideAsOneAfterTheOther) {
  test::writeBytes(path("Skins/C/filter.ini"), "\\images\\gone.bmp\r\n");
  for (const QStringList& options : {QStringList(), QStringList{"--design", "--touch", "40"}}) {
    const QStringList words = QStringList("check") + options + skins();
    EXPECT_EQ(run(words), 1);
    const QByteArray here = out;
    EXPECT_EQ(runProgram(words), 1);
    EXPECT_EQ(out.toStdString(), here.toStdString());
    EXPECT_EQ(err.toStdString(), "");
    EXPECT_TRUE(out.startsWith("A/menu.ini:4: error: ")) << out.toStdString();
    EXPECT_TRUE(out.contains("\n-b/")) << "its warning: no record file is here";
    EXPECT_LT(out.indexOf("\nA/filter.ini"), out.indexOf("\nC/filter.ini"));
    EXPECT_EQ(out.contains(": hint: "), !options.isEmpty());
  }
}

TEST_F(Several, AreRenderedEachIntoAFolderOfItsName) {
  const QStringList options{"--only", "Queue Screen", "--screen=800x600", "--script", path("script")};
  test::writeBytes(path("script"), "click Form1.Label16(3)\n");
  const QStringList sound{path("Skins/-b"), path("Skins/C")};
  ASSERT_EQ(runProgram(QStringList("render") + options + QStringList{"--to", path("png")} + sound), 0)
      << err.toStdString();
  for (const QString name : {"-b", "C"}) {
    const QString folder = path("single/" + name);
    ASSERT_EQ(run(QStringList{"render", "--to", folder} + options + QStringList(path("Skins/" + name))), 0);
  }
  EXPECT_EQ(test::filesBelow(path("png")), test::filesBelow(path("single")));
  EXPECT_EQ(test::filesBelow(path("png")).size(), 2);
}

TEST_F(Several, DoNotTakeEachOtherAlong) {
  EXPECT_EQ(runProgram(QStringList{"render", "--only", "Queue Screen", "--to", path("png")} + skins()), 1);
  EXPECT_TRUE(err.startsWith("menu.ini:4: ")) << err.toStdString();
  EXPECT_EQ(test::filesBelow(path("png")).size(), 2) << "of the other two";
}

TEST_F(Several, OfOneNameAreRefusedAhead) {
  QDir(root.path()).mkpath("Other/C");
  const QStringList words{"render", "--to", path("png"), path("Skins/-b"), path("Skins/C"), path("Other/C")};
  EXPECT_EQ(runProgram(words), 2);
  EXPECT_TRUE(err.startsWith("skintool: two Skins bear the name \"C\"")) << err.toStdString();
  EXPECT_FALSE(QDir(path("png")).exists());
}

TEST(SideBySide, TellsResultsInOrderAlsoOfThoseThatWereKilled) {
  const auto shell = [](const char* script) { return QStringList{"-c", script, "Skin"}; };
  QList<QStringList> commands{shell("sleep 0.2; cat"), shell("echo said >&2; kill -9 $$"), shell("exit 3")};
  for (int i = 0; i < 20; ++i) commands << shell("cat");
  QList<CommandResult> results;
  runSideBySide("/bin/sh", commands, "typed\n", [&](const CommandResult& result) { results << result; });
  ASSERT_EQ(results.size(), commands.size());
  EXPECT_EQ(results[0].out.toStdString(), "typed\n");
  EXPECT_EQ(results[1].status, 1);
  EXPECT_EQ(results[1].err.toStdString(), "said\nSkin: the run on this Skin was ended\n");
  EXPECT_EQ(results[2].status, 3);
  for (qsizetype i = 3; i < results.size(); ++i) EXPECT_EQ(results[i].out.toStdString(), "typed\n");
  runSideBySide("/nowhere/skintool", {{"check", "Skin"}}, {}, [&](const CommandResult& result) {
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err.toStdString(), "Skin: skintool can't be started for this Skin\n");
  });
}

}  // namespace
}  // namespace veneerer
