// What the batch tool tells of a Skin.
#include "problems/check.h"

#include <sys/stat.h>

#include <QImage>

#include "problems/textdamage.h"
#include "skintool/batchrun.h"
#include "support/hostilepictures.h"

namespace veneerer {
namespace {

class Check : public BatchTest {
protected:
  void SetUp() override { ASSERT_EQ(run({"save", skin(), "--to", skin(), "--cover", "a.cov"}), 0); }
  QString file(const QString& name) const { return skin() + '/' + name; }
  void write(const QString& name, const QByteArray& bytes) const { test::writeBytes(file(name), bytes); }
  QByteArray bytesOf(const QString& name) const { return test::bytesOf(file(name)); }
  void change(const char* name, int line, const QByteArray& text) {
    QList<QByteArray> lines = bytesOf(name).split('\n');
    ASSERT_LT(line, lines.size());
    lines[line - 1] = text + '\r';
    write(name, lines.join('\n'));
  }
  QList<QByteArray> check() {
    status = run({"check", skin()});
    return out.split('\n');
  }
  int status = -1;
};

struct Changed {
  const char* file;
  int line;
  QByteArray text;
  const char* said;  ///< the whole finding, but for its place
};

TEST_F(Check, TellsErrorsFirstEachWithItsLine) {
  check();
  EXPECT_EQ(out.toStdString(), "") << "a Skin of our own has no finding";
  EXPECT_EQ(status, 0);
  write("progress.ini", " 1 \r\n 2 \r\n 3 \r\n 4 \r\n 5 \r\n");
  change("tab.ini", 3, "wide");
  change("font.ini", 2, "red");
  change("resolution.ini", 4, "99999999999999");
  EXPECT_EQ(
      check(),
      (QList<QByteArray>{
          "font.ini:2: error: Form6.Label5 ForeColor: a number is due here, but \"red\" stands in its place",
          "resolution.ini:4: error: Form4.Text1(0) Text: 99999999999999 pixels are out of range",
          "tab.ini:3: warning: Form1.lvButtons_H4(0) ButtonShape: a number is due here, but \"wide\" stands "
          "in its place",
          "progress.ini: warning: has 5 lines where the format has 4", ""}));
  EXPECT_EQ(status, 1);
}

TEST_F(Check, TellsWhatALoadOrASaveWouldSpoil) {
  const Changed cases[] = {
      {"spin.ini", 1, "007", "the caption \"007\" comes back as \"7\""},
      {"spin.ini", 1, " lead", "the caption \" lead\" loses its leading blanks"},
      {"spin.ini", 1, "   ", "the caption \"   \" comes back as \"\""},
      {"spin.ini", 1, "\"Play\"", "the caption \"Play\" loses its quotes"},
      {"spin.ini", 1, "\"a, b\"",
       "the caption \"a, b\" loses its quotes; then a comma cuts the caption \"a, b\""},
      {"spin.ini", 1, "#TRUE#", "the caption \"#TRUE#\" comes back as \"True\""},
      {"spin.ini", 1, "caf\xC3\xA9",
       "the caption \"caf\u00C3\u00A9\" is \"caf\u00E9\" in UTF-8, where code page 1252 is due"},
      {"spin.ini", 1, "caf\xE9\x9D",
       "the caption \"caf\u00E9?\" holds the byte 9D (hexadecimal), for which code page 1252 has no "
       "character"},
      {"spin.ini", 2, " 1.50 ", "the number \"1.50\" comes back as \"2\""},
      {"spin.ini", 8, " 1.50 ", "the number \"1.50\" comes back as \"1.5\""},
      {"spin.ini", 8, " 1234.56789 ", "the number \"1234.56789\" comes back as \"1234.568\""},
      {"main.ini", 95, "007", "the font name \"007\" comes back as \"7\""},
      {"main.ini", 96, "8.5", "the font size \"8.5\" comes back as \"8\""},
      {"main.ini", 96, "8,5", "the font size \"8,5\" comes back as \"8\""},
      {"a.cov", 4, " 12.5 ", "the number \"12.5\" comes back as \"12\""},
      {"resolution.ini", 5, "600.0", "the number \"600.0\" comes back as \"600\""},
      {"resolution.ini", 4, "\"600, 99999999999\"",
       "the number \"600, 99999999999\" loses its quotes; then a comma cuts the number \"600, "
       "99999999999\""},
      {"resolution.ini", 5, "\"#NULL#\"",
       "the number \"#NULL#\" loses its quotes; then the next load fails on the number \"#NULL#\""},
      {"a.cov", 2, " 40 ", "the number \"40\" comes back as \"28\""},
  };
  for (const Changed& c : cases) {
    const QByteArray before = bytesOf(c.file);
    change(c.file, c.line, c.text);
    const QByteArray place = QByteArray(c.file) + ':' + QByteArray::number(c.line);
    check();
    EXPECT_EQ(out.toStdString(), (place + ": warning: " + c.said + '\n').toStdString());
    write(c.file, before);
  }
}

TEST_F(Check, TellsTheCommaThatMovesAFileAndNoneOfItsConsequences) {
  change("genbut.ini", 1, "General Buttons a, b");
  change("genbut.ini", 2, "a, b");
  change("licence.ini", 2, "1,5");
  const QList<QByteArray> findings = check();
  for (const char* finding : {"genbut.ini:1: warning: a comma cuts the label line \"General Buttons a, b\"",
                              "licence.ini:2: warning: a comma cuts the line \"1,5\""})
    EXPECT_TRUE(findings.contains(finding)) << finding << '\n' << out.toStdString();
  EXPECT_EQ(out.count("genbut.ini"), 2);
}

TEST_F(Check, TellsOfImagesWhyTheyWontBeShown) {
  const QString grabbed = skin() + "/images/Player.bmp";
  QImage(2, 2, QImage::Format_RGB32).save(grabbed);
  QImage(2, 2, QImage::Format_RGB32).save(path("outside.bmp"));
  write("images/\u0141.bmp", "BM");
  write("images/text.bmp", "no picture");
  const struct {
    QByteArray reference;
    QByteArray said;
  } cases[] = {
      {"\\images\\gone\x1B.bmp", "the image \"\\images\\gone?.bmp\" is missing"},
      {"\\images\\player.bmp", ""},
      {grabbed.toUtf8(), "the image \"" + grabbed.toUtf8() +
                             "\" is named by its full path, which doesn't travel with the Skin"},
      {"\\..\\..\\outside.bmp", "the image \"\\..\\..\\outside.bmp\" lies outside the Skin's folder"},
      {path("outside.bmp").toUtf8(),
       "the image \"" + path("outside.bmp").toUtf8() + "\" lies outside the Skin's folder"},
      {"\\images\\text.bmp", "the image \"\\images\\text.bmp\" can't be decoded"},
      {"\\images\\?.bmp",
       "the image \"\\images\\?.bmp\" is missing: code page 1252 can't hold the name of \"\u0141.bmp\""},
      {"\\images\\\xC5\x81.bmp",
       "the image reference \"\\images\\\u00C5?.bmp\" is \"\\images\\\u0141.bmp\" in UTF-8, where code page "
       "1252 is due"},
  };
  for (const auto& c : cases) {
    change("filter.ini", 1, c.reference);
    check();
    const QByteArray finding = c.said.isEmpty() ? QByteArray() : "filter.ini:1: warning: " + c.said + '\n';
    EXPECT_EQ(out.toStdString(), finding.toStdString());
  }
}

TEST_F(Check, TellsOfACanvasThatIsTooLargeToBeDrawn) {
  change("resolution.ini", 4, " 16380 ");
  change("resolution.ini", 5, " 3000 ");
  check();
  EXPECT_EQ(out.toStdString(), "");
  change("resolution.ini", 5, " 4000 ");
  check();
  EXPECT_EQ(out.toStdString(),
            "resolution.ini: warning: of so large a canvas only 16384 x 3072 pixels are drawn\n");
}

TEST_F(Check, TellsHowManyImagesItDidntTry) {
  for (const char* name : {"a", "b", "c"}) write(QString("images/") + name, test::flatPng({100, 100}));
  change("filter.ini", 1, "\\images\\a");
  change("skin.ini", 4, "\\images\\b");
  change("skin.ini", 6, "\\images\\c");
  Findings findings = checkSkin(SkinFolder(skin()), Screen(), 31'000).findings;
  EXPECT_EQ(findings.size(), 0);
  findings = checkSkin(SkinFolder(skin()), Screen(), 25'000).findings;
  ASSERT_EQ(findings.size(), 1);
  EXPECT_EQ(findings[0].text, "all images together take too long to decode: 1 not tried");
}

TEST_F(Check, TellsOfFilesThatNoLoadReads) {
  write("search_choice.ini", bytesOf("search_Choice.ini"));
  check();
  EXPECT_EQ(out.toStdString(), "") << "twins that agree are no fault";
  change("search_choice.ini", 2, " 77 ");
  write("mine.ini", "x\r\n");
  write("Nav.ini", bytesOf("nav.ini"));
  write("ten covers", bytesOf("a.cov"));
  write("notes.txt", " 1 \r\n 2 \r\nAlbum\r\n");
  write("B\n1: error: forged\x1B]0;x\x07.COV", bytesOf("a.cov") + "more\r\n");
  const QList<QByteArray> findings = check();
  EXPECT_EQ(findings.size(), 6) << out.toStdString();
  for (const char* finding :
       {"search_choice.ini: warning: differs from search_Choice.ini, which a save writes and no load reads",
        "mine.ini: warning: is no record file that is ever read",
        "Nav.ini: warning: is never read: the name is spelt nav.ini",
        "ten covers: warning: reads like a cover file, but only names that end in .cov are listed"})
    EXPECT_TRUE(findings.contains(finding)) << finding << '\n' << out.toStdString();
  EXPECT_TRUE(findings[1].startsWith("B?1: error: forged?]0;x?.COV: warning: has ")) << out.toStdString();
}

TEST_F(Check, TellsWhatIsNoFileUnderAFilesName) {
  for (const char* name : {"main.ini", "menu_v2.ini", "tab.ini"}) QFile::remove(file(name));
  QDir().mkpath(file("main.ini"));
  ASSERT_EQ(::mkfifo(QFile::encodeName(file("menu_v2.ini")).constData(), 0600), 0);
  QFile::link("gone", file("tab.ini"));
  QFile::link("gone", file("b.cov"));
  QDir().mkpath(file("c.cov"));
  ASSERT_EQ(::mkfifo(QFile::encodeName(file("d.cov")).constData(), 0600), 0);
  write(".menu.ini.999999999-0123456789abcdef.saving", "what a killed save left");
  EXPECT_EQ(check(),
            (QList<QByteArray>{"main.ini: error: there is something under this name that is no file",
                               "menu_v2.ini: warning: there is something under this name that is no file",
                               "tab.ini: warning: the file is a link that leads nowhere",
                               "b.cov: warning: the file is a link that leads nowhere",
                               "c.cov: warning: there is something under this name that is no file",
                               "d.cov: warning: there is something under this name that is no file", ""}));
}

TEST_F(Check, LeavesOutCoverFilesBeyondAMillionLines) {
  const QByteArray cover = " 1 \r\n 2000 \r\nAlbum Covers\r\n" + QByteArray("1\n").repeated(4000);
  for (int i = 10; i < 40; ++i) write(QStringLiteral("b%1.cov").arg(i), cover);
  const QList<QByteArray> findings = check();
  EXPECT_TRUE(findings.contains("warning: there are too many cover files: 7 not checked"))
      << out.toStdString();
  EXPECT_TRUE(findings[0].startsWith("b10.cov:4004: error: ")) << out.toStdString();
}

TEST_F(Check, NamesTheSkinWhereThereAreSeveral) {
  const QString empty = path("Skins/Empty");
  QDir().mkpath(empty);
  EXPECT_EQ(run({"check", empty}), 0);
  EXPECT_EQ(out.toStdString(), "warning: no record file is here\n");
  change("font.ini", 2, "red");
  EXPECT_EQ(run({"check", empty, skin()}), 1);
  EXPECT_TRUE(out.startsWith("S/font.ini:2: error: ")) << out.toStdString();
  EXPECT_TRUE(out.endsWith("\nEmpty/warning: no record file is here\n")) << out.toStdString();
}

TEST_F(Check, TellsHintsOfTheDesignOnlyWhenAsked) {
  write("images/forgotten.bmp", "BM");
  write("read me.txt", "hello");
  change("search.ini", 12, " 450 ");
  change("licence.ini", 3, "-15");
  // Room for the widest screens of the built-in design.
  change("resolution.ini", 4, " 830 ");
  change("resolution.ini", 5, " 900 ");
  EXPECT_EQ(check(), QList<QByteArray>{""});
  EXPECT_EQ(run({QStringLiteral("check"), QStringLiteral("--design"), skin()}), 0);
  EXPECT_EQ(out.toStdString(),
            "search.ini:12: hint: Form1.lvButtons_H6(0): the button is 30 pixels wide, a finger needs 32\n"
            "licence.ini:3: hint: Form1.Label27(3): it lies partly outside Form1.Picture1(26)\n"
            "images/forgotten.bmp: hint: nothing in the Skin names this file\n"
            "read me.txt: hint: nothing in the Skin names this file\n");
  run({QStringLiteral("check"), QStringLiteral("--design"), QStringLiteral("--touch"), QStringLiteral("30"),
       skin()});
  EXPECT_FALSE(out.contains("search.ini")) << out.toStdString();
  EXPECT_EQ(run({QStringLiteral("check"), QStringLiteral("--touch"), QStringLiteral("20"), skin()}), 2);

  change("font.ini", 2, "red");
  EXPECT_EQ(run({QStringLiteral("check"), QStringLiteral("--design"), skin()}), 1);
  EXPECT_EQ(out.count('\n'), 1) << "a Skin that doesn't load has no design: " << out.toStdString();
}

TEST(TextDamage, TellsWhatASaveDoesToALiveText) {
  const struct {
    const char16_t* text;
    const char* said;
  } cases[] = {
      {u"Rock \u20AC 5 \u00E9 \"x\" ", ""},
      {u"", ""},
      {u"Rock, Pop", "a comma cuts the caption \"Rock, Pop\""},
      {u"two\nlines", "a line end cuts the caption \"two?lines\""},
      {u"\"Play\"", "the caption \"\"Play\"\" begins with a double quote and doesn't come back"},
      {u"\u0141\u00F3d\u017A",
       "the caption \"\u0141\u00F3d\u017A\" comes back as \"?\u00F3d?\": code page 1252 can't hold it"},
      {u"1E3", "the caption \"1E3\" comes back as \"1000\""},
      {u"#NULL#", "the next load fails on the caption \"#NULL#\""},
  };
  for (const auto& c : cases)
    EXPECT_EQ(textDamage("caption", QString::fromUtf16(c.text)).toStdString(), c.said);
  // The bytes beside those that stand for no character.
  EXPECT_EQ(undefinedByteDamage("caption", "\u0178\u00A0").toStdString(), "");
  EXPECT_TRUE(undefinedByteDamage("caption", "\u0081").contains("the byte 81"));
  // A lone byte of the code page looks like the start of a longer character.
  EXPECT_EQ(utf8Damage("caption", "caf\u00E9").toStdString(), "");
}

}  // namespace
}  // namespace veneerer
