// The batch tool by its command line.
#include <gtest/gtest.h>

#include <QFileInfo>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "elements/printable.h"
#include "records/recorderror.h"
#include "skintool/batchrun.h"
#include "skintool/render.h"
#include "skintool/script.h"
#include "support/scriptedplatform.h"

namespace veneerer {
namespace {

class Skintool : public BatchTest {
protected:
  /// Dumps the Skin after a script.
  QJsonObject dump(const QByteArray& script) {
    write(path("script"), script);
    EXPECT_EQ(run({QStringLiteral("dump"), skin(), QStringLiteral("--script"), path("script")}), 0)
        << err.toStdString();
    return QJsonDocument::fromJson(out).object();
  }
  static QJsonObject element(const QJsonObject& state, const char* key) {
    return state[u"elements"].toObject()[QLatin1String(key)].toObject();
  }
};

TEST_F(Skintool, PlaysWhatAnOperatorDoes) {
  QImage(4, 4, QImage::Format_RGB32).save(skin() + QStringLiteral("/images/b.bmp"));
  const QJsonObject state = dump(
      "# an ordinary edit\n"
      "screen Queue Screen\n"
      "press Form1.Label23(2) 30 30\n"
      "move Form1.Label23(2) 60.5 45\n"
      "move Form1.Label23(2) 500 500 none\n"
      "click Form1.Label23(2)\n"
      "set Form6.Text3(0) \"333\"\n"
      "choose Form6.Combo5 \"Right Align\"\n"
      "tick Form6.Option1(1)\n"
      "colour 255\n"
      "click Form6.Picture2\n"
      "font \"Liberation Serif\" 14 bold\n"
      "click Form6.Command14\n"
      "tick Form4.Check9 1\n"
      "choose Form4.Combo10 2\n"
      "file " +
      (skin() + QStringLiteral("/images/b.bmp")).toUtf8() +
      "\n"
      "press Form1.lvButtons_H18(1) 1 1 right\n"
      "resize 9000 8000.5\n");
  const QJsonObject label = element(state, "Form1.Label23(2)");
  EXPECT_EQ(label[u"Height"].toDouble(), 333);
  EXPECT_EQ(label[u"Alignment"].toInt(), 1);
  EXPECT_EQ(label[u"BackColor"].toInt(), 255);
  EXPECT_EQ(label[u"FontName"].toString().toStdString(), "Liberation Serif");
  EXPECT_TRUE(label[u"FontBold"].toBool());
  EXPECT_EQ(label[u"Container"].toString().toStdString(), "Form1.Picture1(4)");
  EXPECT_EQ(element(state, "Form4.Combo10")[u"Text"].toString().toStdString(), "Pop Up Player");
  EXPECT_EQ(element(state, "Form1.lvButtons_H18(1)")[u"Picture"].toString().toStdString(), "/images/b.bmp");
  EXPECT_EQ(state[u"tables"].toObject()[u"lvButtons_H18Name"].toArray()[1].toString().toStdString(),
            "\\b.bmp");
  EXPECT_EQ(element(state, "Form1")[u"Height"].toDouble(), 8000.5);
  EXPECT_TRUE(element(state, "Form1.Picture1(4)")[u"Visible"].toBool());
  const QJsonObject globals = state[u"globals"].toObject();
  EXPECT_EQ(globals[u"SectionNumber"].toInt(), 70);
  EXPECT_EQ(globals[u"ElementIndex"].toInt(), 2);
  EXPECT_EQ(state[u"tables"].toObject()[u"ImageName"].toArray().size(), 16);
}

TEST_F(Skintool, ADumpHoldsNothingThatSteersATerminal) {
  const QString name = QStringLiteral("a\u001b]0;x\u0007\u009b31m\u202e\U000E0041\u007f.cov");
  write(skin() + u'/' + name, " 0 \r\n-1 \r\nAlbum Covers\r\nAlbum Frames\r\nAlbum Title\r\n");
  const QString typed = QStringLiteral("\u00e9\U0001F3B5 ").repeated(40'000) + name;
  const QJsonObject state = dump("set Form4.Text2 \"" + typed.toUtf8() + "\"\n");
  EXPECT_EQ(element(state, "Form4.File1")[u"List"].toArray()[0].toString(), name);
  EXPECT_TRUE(element(state, "Form4.Text2")[u"Text"].toString() == typed);
  const QString printed = QString::fromUtf8(out.replace('\n', ' '));
  EXPECT_TRUE(printable(printed) == printed);
}

TEST_F(Skintool, PressesWithAnyButton) {
  const QJsonObject state = dump("press Form1.lvButtons_H1(3) 40 50.5 middle\n");
  EXPECT_EQ(state[u"globals"].toObject()[u"DragAnchorX"].toDouble(), 40);
  EXPECT_EQ(state[u"globals"].toObject()[u"DragAnchorY"].toDouble(), 50.5);
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
    write(path("script"), c.script);
    EXPECT_EQ(run({QStringLiteral("save"), skin(), QStringLiteral("--to"), path("out"),
                   QStringLiteral("--script"), path("script")}),
              1);
    EXPECT_TRUE(err.startsWith(path("script").toUtf8())) << err.toStdString();
    EXPECT_TRUE(err.contains(c.said)) << err.toStdString();
    EXPECT_FALSE(QDir(path("out")).exists());
  }
}

TEST_F(Skintool, AnswersWrongUseAndBrokenSkinsByTheirStatus) {
  EXPECT_EQ(run({}), 2);
  EXPECT_EQ(run({QStringLiteral("dump"), path("nowhere")}), 2);
  EXPECT_EQ(run({QStringLiteral("save"), skin()}), 2);
  EXPECT_EQ(run({QStringLiteral("dump"), skin(), QStringLiteral("--dpi"), QStringLiteral("0")}), 2);
  EXPECT_EQ(run({QStringLiteral("dump"), skin(), QStringLiteral("--screen"), QStringLiteral("800x 600")}), 2);
  EXPECT_EQ(run({QStringLiteral("dump"), skin(), QStringLiteral("--script"), QString()}), 2);
  EXPECT_EQ(run({QStringLiteral("dump"), skin(), QStringLiteral("--cover"), QStringLiteral("x")}), 2);
  for (const char* name : {"x.txt", "../x.cov", ""})
    EXPECT_EQ(run({QStringLiteral("save"), skin(), QStringLiteral("--to"), path("out"),
                   QStringLiteral("--cover"), QString::fromLatin1(name)}),
              2);
  write(skin() + QStringLiteral("/menu.ini"), "INI Version\r\n 2 \r\n 10 \r\nwide\r\n");
  EXPECT_EQ(run({QStringLiteral("save"), skin(), QStringLiteral("--to"), path("out")}), 1);
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
      {{QStringLiteral("--help")}, "usage: skintool dump SKIN", "skintool check SKIN...", "options:"},
      {{QStringLiteral("save"), QStringLiteral("--help")},
       "usage: skintool save SKIN",
       "--cover NAME",
       "--only"},
      {{QStringLiteral("check"), path("nowhere"), QStringLiteral("--help")},
       "usage: skintool check",
       "",
       "--to"},
      {{QStringLiteral("--version")}, "skintool ", ".", "\n\n"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(run(c.words), 0);
    EXPECT_EQ(err.toStdString(), "");
    EXPECT_TRUE(out.startsWith(c.begins) && out.contains(c.holds)) << out.toStdString();
    EXPECT_FALSE(out.contains(c.lacks)) << out.toStdString();
  }
  EXPECT_EQ(run({QStringLiteral("jump"), QStringLiteral("--help")}), 2);
}

TEST_F(Skintool, SavesWithTheCoverOnDemandAndRendersTheChosenScreens) {
  ASSERT_EQ(run({QStringLiteral("save"), skin(), QStringLiteral("--to"), skin(), QStringLiteral("--cover"),
                 QStringLiteral("mine")}),
            0);
  EXPECT_EQ(QDir(skin()).entryList(QDir::Files).size(), 60);
  EXPECT_TRUE(QFile::exists(skin() + QStringLiteral("/mine.cov")));
  ASSERT_EQ(
      run({QStringLiteral("render"), skin(), QStringLiteral("--to"), path("png"), QStringLiteral("--only"),
           QStringLiteral("Queue Screen"), QStringLiteral("--only"), QStringLiteral("Pop Up Menu")}),
      0);
  EXPECT_EQ(QDir(path("png")).entryList(QDir::Files),
            (QStringList{QStringLiteral("04 Queue Screen.png"), QStringLiteral("31 Pop Up Menu.png")}));
  const QImage queue(path("png/04 Queue Screen.png"));
  EXPECT_EQ(queue.size(), QSize(804, 633));
}

TEST_F(Skintool, WhatStandsInTheWayEndsTheRunBeforeAnythingIsWritten) {
  QDir().mkpath(path("out/tab.ini"));
  const QStringList save{QStringLiteral("save"), skin(), QStringLiteral("--to"), path("out")};
  EXPECT_EQ(run(save), 1);
  EXPECT_EQ(err.toStdString(), "tab.ini: there is something under this name that is no file\n");
  EXPECT_EQ(QDir(path("out")).entryList(QDir::Files | QDir::Hidden), QStringList());
  QDir().rmdir(path("out/tab.ini"));
  EXPECT_EQ(run(save), 0);
  write(path("file"), {});
  EXPECT_EQ(run({QStringLiteral("save"), skin(), QStringLiteral("--to"), path("file")}), 1);
  EXPECT_EQ(err, path("file").toUtf8() + ": the folder can't be made\n");

  QDir().mkpath(path("png"));
  QFile::link(path("file"), path("png/31 Pop Up Menu.png"));
  EXPECT_EQ(run({QStringLiteral("render"), skin(), QStringLiteral("--to"), path("png")}), 1);
  EXPECT_TRUE(err.startsWith("31 Pop Up Menu.png: ")) << err.toStdString();
  EXPECT_EQ(QDir(path("png")).entryList(QDir::Files | QDir::Hidden).size(), 1) << "the link alone";
  EXPECT_EQ(QFileInfo(path("file")).size(), 0);
}

TEST(Rendering, LeavesEachPictureWholeWhateverFails) {
  QTemporaryDir root;
  test::ScriptedPlatform world;
  Designer designer(world.platform);
  designer.startUp();
  const QString folder = root.filePath(QStringLiteral("png"));
  const QStringList only{QStringLiteral("Queue Screen"), QStringLiteral("Pop Up Menu")};
  for (int at = 1; at <= 5; ++at) {
    SCOPED_TRACE(at);
    QDir(folder).removeRecursively();
    world.disk.failAt(at);
    EXPECT_THROW(renderScreens(designer, folder, only), RecordError);
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden);
    EXPECT_EQ(files.size(), at > 3 ? 1 : 0);
    for (const QFileInfo& file : files) EXPECT_FALSE(QImage(file.filePath(), "PNG").isNull());
  }
  world.disk.failAt(0);
  renderScreens(designer, folder, only);
  EXPECT_EQ(world.disk.operations, 5);
}

TEST(Scripts, SplitTheirLines) {
  const QList<ScriptWord> words = splitScriptLine(QStringLiteral("set Form6.Text1 \"a \\\"b\\\" \\\\c\"  x"));
  ASSERT_EQ(words.size(), 4);
  EXPECT_EQ(words[2].text.toStdString(), "a \"b\" \\c");
  EXPECT_TRUE(words[2].isQuoted);
  EXPECT_FALSE(words[3].isQuoted);
}

}  // namespace
}  // namespace veneerer
