// Files read into elements: optional tails, failures with their place, and the rules of images.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "records/layoutreader.h"
#include "records/layoutwriter.h"
#include "records/recorderror.h"
#include "records/recordfiles.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

class Reading : public testing::Test {
protected:
  Reading() {
    state.form4.Combo10->setRows({"a", "b"});
    QDir(root.path()).mkpath("Skins/S/images");
    QImage(4, 4, QImage::Format_RGB32).save(root.path() + "/Skins/S/images/Play.BMP");
  }

  QByteArray composed(Layout (*make)(State&)) { return composeRecords(make(state)); }
  /// The file's first lines only.
  static QByteArray cut(const QByteArray& bytes, int lines) {
    return bytes.split('\n').mid(0, lines).join('\n') + (lines > 0 ? "\n" : "");
  }
  static QByteArray withLine(const QByteArray& bytes, int line, const QByteArray& text) {
    QList<QByteArray> lines = bytes.split('\n');
    lines[line - 1] = text + '\r';
    return lines.join('\n');
  }
  QString read(Layout (*make)(State&), const QByteArray& bytes) { return read(make(state), bytes); }
  QString read(const Layout& layout, const QByteArray& bytes) {
    const SkinFolder folder(ProgramFolder{root.path()}, "S");
    const Screen screen;
    Loading loading{state, folder, screen};
    const QString message = readRecords(layout, bytes, loading);
    rowLines = loading.lines;
    return message;
  }
  std::string failure(Layout (*make)(State&), const QByteArray& bytes) {
    try {
      read(make, bytes);
    } catch (const RecordError& error) {
      return error.message().toStdString();
    }
    return "";
  }

  QTemporaryDir root;
  State state;
  std::vector<int> rowLines;  ///< of the rows of the file that was read last
};

TEST_F(Reading, ErrorsNameTheirPlaceAndQuoteAValueAsItStandsAndNoMoreOfIt) {
  const QByteArray digits(400, '7');
  const QByteArray shown = digits.left(60);
  const struct {
    Layout (*make)(State&);
    int line;
    QByteArray text;
    QByteArray said;
  } cases[] = {
      {menuFile, 8, "wide",
       "menu.ini:8: Form1.lvButtons_H1(0) ButtonStyle: a number is due here, but \"wide\" stands in its "
       "place"},
      {intelliFile, 9, " 3 ", "intelli.ini:9: Form1.Label52 Alignment: an alignment is 0, 1 or 2, not 3"},
      {intelliFile, 9, " 32768 ",
       "intelli.ini:9: Form1.Label52 Alignment: the number 32768 is out of the field's range"},
      {lockedButtonFile, 36, "-1 ",
       "locked_button.ini:36: Form2.Check3(5) Value: a check box takes 0, 1 or 2, not -1"},
      {lockedButtonFile, 36, "#NULL#", "locked_button.ini:36: "},
      {playerFile, 1, " 7 ", "the list has no row 7"},
      {fontFile, 1, " 99999999999 ", "the number 99999999999 is out of the field's range"},
      {fontFile, 1, digits, "the number " + shown + " is out of the field's range"},
      {mainFile, 1, "1e39, 5", "the number 1e39 is out of the field's range"},
      {fontFile, 1, "#ERROR " + digits + "#", "#ERROR " + shown.left(53) + " is a value that no field takes"},
      {fontFile, 1, digits + "\xE9", "but \"" + shown + "\" stands"},
      {fontFile, 1, "red\x1B[31m\x9D", "but \"red?[31m?\" stands"},
  };
  for (const auto& c : cases) {
    const std::string said = failure(c.make, withLine(composed(c.make), c.line, c.text));
    EXPECT_NE(said.find(c.said.toStdString()), std::string::npos) << said;
  }
  EXPECT_EQ(failure(menuFile, "INI Version\r\n"), "menu.ini:2: version: the file ends where a value is due");
  EXPECT_EQ(failure(filterFile, ""), "filter.ini:1: image reference: the file ends where a value is due");
  EXPECT_EQ(failure(genreBarFile, ""), "genre_bar.ini:1: label line: the file ends where a value is due");
  // A comma in the caption stands in the label line too and moves every later field by two places.
  state.form1.lvButtons_H1[0].setCaption("Rock, Pop");
  EXPECT_NE(failure(menuFile, composed(menuFile)), "");
  EXPECT_NE(
      failure(resolutionFile, "\r\n\r\n\r\n1" + digits.left(20) + "\r\n1\r\n").find("resolution.ini:4: "),
      std::string::npos);
}

TEST_F(Reading, AFileMayEndAheadOfAnOptionalBlockAndNotInsideOne) {
  const struct {
    Layout (*make)(State&);
    int end;     ///< loads with this many lines
    int inside;  ///< fails with this many
  } cases[] = {{menuFile, 121, 122},  {playerFile, 71, 72},    {navFile, 153, 155},
               {tabFile, 40, -1},     {mainFile, 176, 170},    {trackListFile, 991, 993},
               {genreFile, 226, 228}, {genreFile, 1484, 1431}, {playlistFile, 236, 238},
               {framesFile, 12, 11},  {framesFile, 21, -1},    {optionsFile, 194, -1}};
  for (const auto& c : cases) {
    const QByteArray whole = composed(c.make);
    EXPECT_EQ(failure(c.make, cut(whole, c.end)), "") << c.end;
    if (c.inside >= 0) {
      EXPECT_NE(failure(c.make, cut(whole, c.inside)), "") << c.inside;
    }
  }
}

TEST_F(Reading, AnOlderMenuKeepsThePlacesOfTheDesign) {
  Button& first = state.form1.lvButtons_H1[0];
  QList<QByteArray> lines = composed(menuFile).split('\n');
  QByteArray older = "INI Version\r\n 1 \r\n";
  for (int button = 0; button < 9; ++button)
    for (int line = 0; line < 13; ++line)
      if (line != 10 && line != 11) older += lines[4 + 13 * button + line] + '\n';
  first.place(100, 200, 300, 400);
  state.form1.Picture2[0].setHeight(77);
  EXPECT_EQ(failure(menuFile, older), "");
  EXPECT_EQ(first.left(), 100);
  EXPECT_EQ(first.height(), 0) << "the size is in the older file too";
  EXPECT_EQ(state.form1.Picture2[0].height(), 77);
  ASSERT_EQ(rowLines.size(), 121u) << "the five later buttons were left out";
  EXPECT_EQ((std::vector<int>(rowLines.begin(), rowLines.begin() + 5)), (std::vector<int>{1, 2, 0, 0, 3}));
  EXPECT_TRUE(composed(menuFile).startsWith("INI Version\r\n 2 \r\n"));
}

TEST_F(Reading, TheImageRuleAppliesTheShapeAfterThePicture) {
  Button& button = state.form1.lvButtons_H4[6];
  const auto file = [](const char* shape, const char* image) {
    return QByteArray("Spin\r\n ") + shape +
           " \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 1 \r\n 2 \r\n 3 \r\n 4 \r\n" + image + "\r\n";
  };
  read(moreButtonFile, file("8", "\\images\\play.bmp"));
  EXPECT_EQ(button.buttonShape(), 8);
  EXPECT_EQ(button.picture().path(), root.path() + "/Skins/S/images/Play.BMP");
  EXPECT_EQ(button.pictureSize(), PictureSize::Side16) << "a shaped button's picture size is fixed";
  read(moreButtonFile, file("8", "\\images\\gone.bmp"));
  EXPECT_EQ(button.buttonShape(), 0) << "no picture, no custom outline";
  EXPECT_TRUE(button.picture().isNull());
  EXPECT_EQ(button.pictureSize(), PictureSize::Stretched);
  EXPECT_TRUE(composed(moreButtonFile).endsWith("\\images\\gone.bmp\r\n")) << "the reference survives";
}

TEST_F(Reading, ValuesAtOrBelowMinusOneAreNotAppliedWhereGuarded) {
  state.form1.Label34[0].place(10, 20, 30, 40);
  QByteArray bytes = composed(playOptionsFile);
  for (int line : {99, 100, 101, 102}) bytes = withLine(bytes, line, "-1 ");
  bytes = withLine(bytes, 100, " 55 ");
  read(playOptionsFile, bytes);
  const Label& label = state.form1.Label34[0];
  EXPECT_EQ(label.top(), 20);
  EXPECT_EQ(label.left(), 55);
  EXPECT_EQ(label.height(), 40);
}

TEST_F(Reading, TheStepOfALineThatFailedIsLeftOut) {
  int steps = 0;
  Layout file(state, "any.ini");
  file.resumeOnError();
  file.field(ValueKind::Single, *state.form1.Picture18, Property::Top);
  file.then([&](Loading&) { ++steps; });
  read(file, "wrong\r\n");
  EXPECT_EQ(steps, 0);
  read(file, " 5 \r\n");
  EXPECT_EQ(steps, 1);
}

TEST_F(Reading, AFontSizeIsTheNumberThatItsWholeLineBeginsWith) {
  Label& label = *state.form1.Label52;
  read(intelliFile, withLine(withLine(composed(intelliFile), 8, "12.75 pt, bold"), 9, " 1 "));
  EXPECT_EQ(label.fontSize(), 12.75f);
  EXPECT_EQ(label.alignment(), 1);
  EXPECT_TRUE(composed(intelliFile).endsWith("\r\n 12 \r\n 1 \r\n")) << "written without its fraction";
}

TEST_F(Reading, WhatIsNoPlainFileOfTheSkinIsRefusedUnread) {
  const QString skin = root.path() + "/Skins/S";
  const SkinFolder folder(skin);
  const Screen screen;
  Loading loading{state, folder, screen};
  const auto refusal = [&](const Layout& layout) {
    try {
      readRecordFile(layout, folder.file(layout.fileName()), loading);
    } catch (const RecordError& error) {
      return error.message().toStdString();
    }
    return std::string();
  };
  EXPECT_EQ(refusal(menuFile(state)), "") << "a file that isn't there changes nothing";
  test::writeBytes(root.filePath("secret"), "secret text\r\n");
  QFile::link(root.filePath("secret"), folder.file("menu.ini"));
  EXPECT_EQ(refusal(menuFile(state)), "menu.ini: the file lies outside the Skin's folder");
  ASSERT_EQ(::mkfifo(QFile::encodeName(folder.file("nav.ini")).constData(), 0600), 0);
  EXPECT_EQ(refusal(navFile(state)), "nav.ini: there is something under this name that is no file");
  QFile large(folder.file("main.ini"));
  ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(kMostRecordBytes + 1));
  EXPECT_EQ(refusal(mainFile(state)), "main.ini: the file is too large");

  // Each by its own policy, as after a failure of its values.
  QDir(skin).mkpath("options.ini");
  EXPECT_EQ(readRecordFile(optionsFile(state), folder.file("options.ini"), loading),
            u"Options screen load error");
  QFile::link("/dev/zero", folder.file("progress.ini"));
  EXPECT_EQ(refusal(progressFile(state)), "");
}

TEST_F(Reading, WhatACounterKeepsAndAWholeIsScaledByGoWithTheLayout) {
  CoverIndex& count = *state.globals.LastCoverIndex;
  float scale = 2;
  Layout file(state, "any.cov");
  file.counter(count, "Count", toLastCoverIndex);
  file.field(ValueKind::Whole, state.form1.Image2[0], Property::Left);
  file.scaleWholes(1, scale);
  file.field(ValueKind::Whole, state.form1.Image2[0], Property::Top);
  read(file, " 32767 \r\n 10.5 \r\n 10.5 \r\n");
  EXPECT_EQ(count.value(), kHighestCover) << "brought into its range";
  EXPECT_EQ(state.form1.Image2[0].left(), 21);
  EXPECT_EQ(state.form1.Image2[0].top(), 10.5f) << "it was added after the mark";
  EXPECT_EQ(composeRecords(file), " 28 \r\n 21 \r\n 10 \r\n") << "the fraction is dropped";
  try {
    read(file, "many\r\n");
    FAIL();
  } catch (const RecordError& error) {
    EXPECT_EQ(error.element().toStdString(), "Count");
  }
}

TEST_F(Reading, CaptionsThatLookLikeNumbersComeBackPlain) {
  read(moreButtonFile,
       "007\r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 12 \r\n");
  EXPECT_EQ(state.form1.lvButtons_H4[6].caption().toStdString(), "7");
  EXPECT_TRUE(composed(moreButtonFile).endsWith(" 12 \r\n")) << "a stored number is written as one";
}

}  // namespace
}  // namespace veneerer
