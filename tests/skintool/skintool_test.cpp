// The batch tool by its command line.
#include <gtest/gtest.h>

#include <QFileInfo>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>

#include "elements/printable.h"
#include "records/recorderror.h"
#include "skintool/batchrun.h"
#include "skintool/render.h"
#include "support/scriptedplatform.h"

namespace veneerer {
namespace {

using Skintool = BatchTest;

TEST_F(Skintool, ADumpHoldsNothingThatSteersATerminal) {
  const QString name = "a\u001b]0;x\u0007\u009b31m\u202e\U000E0041\u007f.cov";
  test::writeBytes(skin() + '/' + name, " 0 \r\n-1 \r\nAlbum Covers\r\nAlbum Frames\r\nAlbum Title\r\n");
  const QString typed = QStringLiteral("\u00e9\U0001F3B5 ").repeated(40'000) + name;
  test::writeBytes(path("script"), "set Form4.Text2 \"" + typed.toUtf8() + "\"\n");
  ASSERT_EQ(run({"dump", skin(), "--script", path("script")}), 0) << err.toStdString();
  const QJsonObject elements = QJsonDocument::fromJson(out).object()["elements"].toObject();
  EXPECT_EQ(elements["Form4.File1"]["List"][0].toString(), name);
  EXPECT_TRUE(elements["Form4.Text2"]["Text"].toString() == typed);
  const QString printed = QString::fromUtf8(out.replace('\n', ' '));
  EXPECT_TRUE(printable(printed) == printed);
}

TEST_F(Skintool, StopsAtAWrongScriptBeforeItWrites) {
  const struct {
    const char* script;
    const char* said;
  } cases[] = {
      {"screen Queue Screen\nclick Form1.Label99\n", ":2: there is no element Form1.Label99"},
      {"jump\x1B[31m\n", ":1: there is no action \"jump?[31m\""},
      {"choose Form4.Combo10 9\n", "has no row"},
      {"click Form1.Label16(3)\nclick Form6.Picture2\n", ":2: the colour dialog finds no answer"},
      {"set Form1.Label5 \"x\"\n", "nothing can be typed"},
      {"reload Gone\n", "there is no Skin"},
      {"set Form6.Text1 \"open\n", "isn't closed"},
      {"press Form1.lvButtons_H1(3) 1 1 both\n", "press knows only"},
  };
  for (const auto& c : cases) {
    test::writeBytes(path("script"), c.script);
    EXPECT_EQ(run({"save", skin(), "--to", path("out"), "--script", path("script")}), 1);
    EXPECT_TRUE(err.startsWith(path("script").toUtf8())) << err.toStdString();
    EXPECT_TRUE(err.contains(c.said)) << err.toStdString();
    EXPECT_FALSE(QDir(path("out")).exists());
  }
}

TEST_F(Skintool, AnswersWrongUseAndBrokenSkinsByTheirStatus) {
  for (const QStringList& words : {QStringList(),
                                   {"dump", path("nowhere")},
                                   {"save", skin()},
                                   {"dump", skin(), "--dpi", "0"},
                                   {"dump", skin(), "--screen", "800x 600"},
                                   {"dump", skin(), "--script", ""},
                                   {"dump", skin(), "--cover", "x"},
                                   {"save", skin(), "--to", path("out"), "--cover", "x.txt"},
                                   {"save", skin(), "--to", path("out"), "--cover", "../x.cov"},
                                   {"save", skin(), "--to", path("out"), "--cover", "a\nb.cov"},
                                   {"save", skin(), "--to", path("out"), "--cover", ""},
                                   {"jump", "--help"}})
    EXPECT_EQ(run(words), 2) << words.join(' ').toStdString();
  test::writeBytes(skin() + "/menu.ini", "INI Version\r\n 2 \r\n 10 \r\nwide\r\n");
  EXPECT_EQ(run({"save", skin(), "--to", path("out")}), 1);
  EXPECT_TRUE(err.startsWith("menu.ini:4: Form1.Picture2(0) Width: ")) << err.toStdString();
  EXPECT_FALSE(QDir(path("out")).exists());
}

TEST_F(Skintool, AnswersHelpAndVersionOnStandardOutput) {
  const struct {
    QStringList words;
    const char* begins;
    const char* holds;
    const char* lacks;
  } cases[] = {
      {{"--help"}, "usage: skintool dump SKIN", "skintool check SKIN...", "options:"},
      {{"save", "--help"}, "usage: skintool save SKIN", "--cover NAME", "--only"},
      {{"check", path("nowhere"), "--help"}, "usage: skintool check", "--design", "--to "},
      {{"--version"}, "skintool ", ".", "\n\n"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(run(c.words), 0);
    EXPECT_EQ(err.toStdString(), "");
    EXPECT_TRUE(out.startsWith(c.begins) && out.contains(c.holds)) << out.toStdString();
    EXPECT_FALSE(out.contains(c.lacks)) << out.toStdString();
  }
}

TEST_F(Skintool, SavesWithTheCoverOnDemandAndRendersTheChosenScreens) {
  ASSERT_EQ(run({"save", skin(), "--to", skin(), "--cover", "mine"}), 0);
  EXPECT_EQ(test::filesBelow(skin()).size(), 60);
  EXPECT_TRUE(QFile::exists(skin() + "/mine.cov"));
  ASSERT_EQ(run({"render", skin(), "--to", path("png"), "--only", "Queue Screen", "--only", "Pop Up Menu"}),
            0);
  EXPECT_EQ(QDir(path("png")).entryList(QDir::Files),
            (QStringList{"04 Queue Screen.png", "31 Pop Up Menu.png"}));
  const QImage queue(path("png/04 Queue Screen.png"));
  EXPECT_EQ(queue.size(), QSize(804, 633));
}

TEST_F(Skintool, WhatStandsInTheWayEndsTheRunBeforeAnythingIsWritten) {
  QDir().mkpath(path("out/tab.ini"));
  const QStringList save{"save", skin(), "--to", path("out")};
  EXPECT_EQ(run(save), 1);
  EXPECT_EQ(err.toStdString(), "tab.ini: there is something under this name that is no file\n");
  EXPECT_EQ(test::filesBelow(path("out")), test::Files());
  QDir().rmdir(path("out/tab.ini"));
  EXPECT_EQ(run(save), 0);
  test::writeBytes(path("file"), {});
  EXPECT_EQ(run({"save", skin(), "--to", path("file")}), 1);
  EXPECT_EQ(err, path("file").toUtf8() + ": the folder can't be made\n");

  QDir().mkpath(path("png"));
  QFile::link(path("file"), path("png/31 Pop Up Menu.png"));
  EXPECT_EQ(run({"render", skin(), "--to", path("png")}), 1);
  EXPECT_TRUE(err.startsWith("31 Pop Up Menu.png: ")) << err.toStdString();
  EXPECT_EQ(test::filesBelow(path("png")).size(), 1) << "the link alone";
  EXPECT_EQ(QFileInfo(path("file")).size(), 0);
}

TEST(Rendering, LeavesEachPictureWholeWhateverFails) {
  QTemporaryDir root;
  test::ScriptedPlatform world;
  Designer designer(world.platform);
  designer.startUp();
  const QString folder = root.filePath("png");
  const QStringList only{"Queue Screen", "Pop Up Menu"};
  for (int at = 1; at <= 5; ++at) {
    SCOPED_TRACE(at);
    QDir(folder).removeRecursively();
    world.disk.failAt(at);
    EXPECT_THROW(renderScreens(designer, folder, only), RecordError);
    const test::Files files = test::filesBelow(folder);
    EXPECT_EQ(files.size(), at > 3 ? 1 : 0);
    for (const QByteArray& file : files) EXPECT_FALSE(QImage::fromData(file, "PNG").isNull());
  }
  world.disk.failAt(0);
  renderScreens(designer, folder, only);
  EXPECT_EQ(world.disk.operations, 5);
}

}  // namespace
}  // namespace veneerer
