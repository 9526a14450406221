// The commands diff, copy, pack and unpack by their words and exit statuses.
#include "skintool/batchrun.h"

namespace veneerer {
namespace {

class ExchangeCommands : public BatchTest {
protected:
  ExchangeCommands() {
    // What comes back in another form does so once.
    for (int i = 0; i < 2; ++i) EXPECT_EQ(run({"save", skin(), "--to", skin()}), 0);
    test::writeBytes(path("Skins/S/images/a.bmp"), "a picture");
    test::writeBytes(path("nudge.txt"),
                     "click \"Form1.lvButtons_H1(0)\"\nnudge \"Form1.lvButtons_H1(0)\" 3 4\n");
  }
  QString script() const { return path("nudge.txt"); }
};

TEST_F(ExchangeCommands, DiffTellsWhatASaveWouldChange) {
  EXPECT_EQ(run({"diff", skin()}), 0);
  EXPECT_EQ(out, "");
  const test::Files before = test::filesBelow(skin());
  EXPECT_EQ(run({"diff", skin(), "--script", script()}), 1);
  EXPECT_EQ(test::filesBelow(skin()), before) << "nothing is written";
  EXPECT_TRUE(out.contains("\nmenu_v2.ini:6: Form1.lvButtons_H1(0).Left: ")) << out.toStdString();
  EXPECT_EQ(out.count('\n'), 4) << "two places in two files";
  EXPECT_EQ(out.count(" -> "), 4);

  QFile::remove(path("Skins/S/queue.ini"));
  QByteArray feeds = before["resolution.ini"];
  test::writeBytes(path("Skins/S/resolution.ini"), feeds.replace("\r\n", "\n"));
  EXPECT_EQ(run({"diff", skin()}), 1);
  EXPECT_TRUE(out.startsWith("queue.ini: only in what a save writes\nresolution.ini:1: "))
      << out.toStdString();
  EXPECT_TRUE(out.contains("\" LF -> \"") && out.contains("\" CR LF\n")) << out.toStdString();
}

TEST_F(ExchangeCommands, DiffOfTwoNamesThemAndFailsWithTwo) {
  ASSERT_EQ(run({"copy", skin(), "--to", path("Skins/T")}), 0);
  EXPECT_EQ(run({"diff", skin(), path("Skins/T")}), 0);
  test::writeBytes(path("Skins/S/images/a.bmp"), "another");
  test::writeBytes(path("Skins/T/new.txt"), "1");
  test::writeBytes(path("Skins/S/old.txt"), "1");
  EXPECT_EQ(run({"diff", skin(), path("Skins/T")}), 1);
  EXPECT_EQ(out, "images/a.bmp: differs\nnew.txt: only in T\nold.txt: only in S\n");

  EXPECT_EQ(run({"diff", skin(), path("Skins/T"), "--script", script()}), 2);
  EXPECT_EQ(run({"diff", skin(), path("Skins/None")}), 2);
  EXPECT_EQ(run({"diff"}), 2);
  test::writeBytes(path("Skins/S/menu.ini"), "no number");
  EXPECT_EQ(run({"diff", skin()}), 2);
  EXPECT_TRUE(err.startsWith("menu.ini:")) << err.toStdString();
  EXPECT_EQ(run({"diff", skin(), path("Skins/T")}), 1) << "two are compared as they are";
}

TEST_F(ExchangeCommands, ACopyIsTheSkinAfterTheScript) {
  EXPECT_EQ(run({"copy", skin(), "--to", path("new/Skins/T"), "--script", script()}), 0);
  EXPECT_EQ(run({"diff", path("new/Skins/T")}), 0);
  EXPECT_EQ(run({"diff", skin(), path("new/Skins/T")}), 1);
  EXPECT_EQ(out.count('\n'), 4) << out.toStdString();
  EXPECT_EQ(run({"copy", skin(), "--to", path("new/Skins/T")}), 2) << "it is there already";
  EXPECT_EQ(run({"copy", skin()}), 2);
  test::writeBytes(path("bad.txt"), "nonsense");
  EXPECT_EQ(run({"copy", skin(), "--to", path("other/T"), "--script", path("bad.txt")}), 1);
  EXPECT_FALSE(QFileInfo::exists(path("other")));
  QFile::link("/etc", path("Skins/S/etc"));
  EXPECT_EQ(run({"copy", skin(), "--to", path("T")}), 0);
  EXPECT_EQ(err, "etc: left out: a link that leads out of the folder\n");
}

TEST_F(ExchangeCommands, PackAndUnpackBringTheSkinBackOnce) {
  EXPECT_EQ(run({"pack", skin(), "--to", path("S.zip")}), 0);
  EXPECT_EQ(run({"unpack", path("S.zip"), "--to", path("other")}), 0);
  EXPECT_EQ(test::filesBelow(path("other/S")), test::filesBelow(skin()));
  EXPECT_EQ(run({"unpack", path("S.zip"), "--to", path("other")}), 1);
  EXPECT_EQ(err, path("S.zip").toUtf8() + ": S: a Skin of this name is there already\n");
  test::writeBytes(path("no.zip"), "no archive");
  EXPECT_EQ(run({"unpack", path("no.zip"), "--to", path("other")}), 1);
  EXPECT_EQ(run({"unpack", path("none.zip"), "--to", path("other")}), 2);
  EXPECT_EQ(run({"unpack", path("S.zip")}), 2);
  EXPECT_EQ(run({"unpack", path("S.zip"), "--to", path("o"), "--script", script()}), 2);
  EXPECT_EQ(run({"pack", skin(), "--to", path("none/S.zip")}), 1);
}

}  // namespace
}  // namespace veneerer
