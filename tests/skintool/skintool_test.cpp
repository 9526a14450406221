// The batch tool by its command line.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "skintool/batch.h"
#include "skintool/script.h"

namespace veneerer {
namespace {

class Skintool : public testing::Test {
protected:
  Skintool() { QDir(root.path()).mkpath(QStringLiteral("Skins/S/images")); }

  QString skin() const { return root.path() + QStringLiteral("/Skins/S"); }
  QString path(const char* name) const { return root.path() + u'/' + QString::fromLatin1(name); }

  int run(QStringList words) {
    words.prepend(QStringLiteral("skintool"));
    std::FILE* outFile = std::tmpfile();
    std::FILE* errFile = std::tmpfile();
    const int status = runBatch(words, outFile, errFile);
    out = contents(outFile);
    err = contents(errFile);
    return status;
  }
  static QByteArray contents(std::FILE* file) {
    std::rewind(file);
    QFile reader;
    QByteArray bytes;
    if (reader.open(file, QIODevice::ReadOnly)) bytes = reader.readAll();
    std::fclose(file);
    return bytes;
  }
  void write(const QString& name, const QByteArray& bytes) {
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
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

  QTemporaryDir root;
  QByteArray out;
  QByteArray err;
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

TEST_F(Skintool, StopsAtAWrongScriptBeforeItWrites) {
  const struct {
    const char* script;
    const char* said;
  } cases[] = {
      {"screen Queue Screen\nclick Form1.Label99\n", ":2: there is no element Form1.Label99"},
      {"jump\n", ":1: there is no action"},
      {"choose Form4.Combo10 9\n", "has no row"},
      {"click Form1.Label16(3)\nclick Form6.Picture2\n", ":2: the colour dialog finds no answer"},
      {"set Form1.Label5 \"x\"\n", "nothing can be typed"},
      {"reload Gone\n", "there is no Skin"},
      {"set Form6.Text1 \"open\n", "isn't closed"},
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
                 QStringLiteral("mine.cov")}),
            0);
  EXPECT_EQ(QDir(skin()).entryList(QDir::Files).size(), 60);
  ASSERT_EQ(
      run({QStringLiteral("render"), skin(), QStringLiteral("--to"), path("png"), QStringLiteral("--only"),
           QStringLiteral("Queue Screen"), QStringLiteral("--only"), QStringLiteral("Pop Up Menu")}),
      0);
  EXPECT_EQ(QDir(path("png")).entryList(QDir::Files),
            (QStringList{QStringLiteral("04 Queue Screen.png"), QStringLiteral("31 Pop Up Menu.png")}));
  const QImage queue(path("png/04 Queue Screen.png"));
  EXPECT_EQ(queue.size(), QSize(804, 633));
}

TEST_F(Skintool, ChecksTellErrorsFirst) {
  ASSERT_EQ(run({QStringLiteral("save"), skin(), QStringLiteral("--to"), skin()}), 0);
  EXPECT_EQ(run({QStringLiteral("check"), skin()}), 0);
  EXPECT_EQ(out.toStdString(), "") << "a Skin of our own has no finding";
  const auto change = [&](const char* name, int line, const QByteArray& text) {
    QFile file(skin() + u'/' + QString::fromLatin1(name));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QList<QByteArray> lines = file.readAll().split('\n');
    file.close();
    lines[line - 1] = text + '\r';
    write(file.fileName(), lines.join('\n'));
  };
  change("morebutton.ini", 12, "\\images\\gone.bmp");
  change("spin.ini", 1, "007");
  change("tab.ini", 2, " lead");
  change("filter.ini", 1, "\\..\\..\\outside.bmp");
  QImage(2, 2, QImage::Format_RGB32).save(path("outside.bmp"));
  change("font.ini", 2, "red");
  write(skin() + QStringLiteral("/mine.ini"), "x\r\n");
  write(skin() + QStringLiteral("/progress.ini"), " 1 \r\n 2 \r\n 3 \r\n 4 \r\n 5 \r\n");
  EXPECT_EQ(run({QStringLiteral("check"), skin()}), 1);
  EXPECT_TRUE(out.startsWith("font.ini:2: error: Form6.Label5 ForeColor: ")) << out.toStdString();
  for (const char* said :
       {"morebutton.ini: warning: line 12: the image \"\\images\\gone.bmp\" is missing",
        "spin.ini: warning: line 1: the caption \"007\" comes back as \"7\"",
        "tab.ini: warning: line 2: the caption \" lead\" loses its leading blanks",
        "filter.ini: warning: line 1: the image \"\\..\\..\\outside.bmp\" lies outside the Skin's folder",
        "mine.ini: warning: ", "progress.ini: warning: has 5 lines where the format has 4"})
    EXPECT_TRUE(out.contains(said)) << said << "\n" << out.toStdString();
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
