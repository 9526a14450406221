// Cover layouts, from file to canvas and back.
#include <gtest/gtest.h>

#include <algorithm>

#include "designer/skinfixture.h"
#include "records/recorderror.h"

namespace veneerer {
namespace {

class Covers : public test::SkinFixture {
protected:
  Covers() { start(); }

  void chooseCount(int covers) { form4().Combo4->select(covers - 1); }
  void saveAs(const char* name) {
    form4().Text2->setText(QString::fromLatin1(name));
    designer->click(*form4().Command1);
  }
  QStringList visible() {
    QStringList keys;
    for (const Family* family : form1().families())
      for (const Element* element : family->members())
        if (element->isVisible()) keys.append(element->key());
    return keys;
  }
  /// A cover file up to its boxes that tells of a last cover and holds that many rows of each family.
  static QByteArray layoutOf(const char* lastCover, int rows) {
    const QByteArray place = " 150 \r\n 75 \r\n 30 \r\n 45 \r\n";
    QByteArray file = QByteArray(" 1 \r\n ") + lastCover + " \r\n";
    for (const char* heading : {"Album Covers", "Album Frames", "Album Title", "Artist Title"})
      file += heading + QByteArray("\r\n") + place.repeated(rows);
    return file + " 1 \r\n 1 \r\n 0 \r\n";
  }
  static int linesOf(int covers) { return 5 + covers * 44 + 7 + 4 + 4 + 18 + 2 + 2; }

  void load(const char* name) {
    form4().File1->setRows({QString::fromLatin1(name)});
    designer->chooseTwice(*form4().File1, 0);
  }
};

TEST_F(Covers, TheBuiltInDesignComesBackAsItStands) {
  EXPECT_EQ(form4().Combo4->text().toStdString(), "10");
  saveAs("first.cov");
  EXPECT_EQ(bytes("first.cov").count("\r\n"), linesOf(10));
  const QStringList before = visible();
  EXPECT_TRUE(before.contains("Form1.ucAniGIF1(9)"));
  const bool wasOpaque = form1().Label9[9].isOpaque();
  load("first.cov");
  EXPECT_EQ(visible(), before);
  EXPECT_EQ(form1().Label9[9].isOpaque(), wasOpaque);
}

TEST_F(Covers, LayoutsOfDifferentLengthComeBackWhole) {
  form1().Image2[3].place(100.75f, -20.5f, 300, 400);
  form1().Label9[9].setFontName("Verdana");
  chooseCount(10);
  saveAs("ten.cov");
  EXPECT_TRUE(files().contains("frames.ini")) << "the frames are saved with the covers";
  form1().Image2[3].setLeft(7);
  form1().Label9[9].setFontName("Arial");
  chooseCount(28);
  saveAs("all.cov");
  EXPECT_EQ(form4().File1->list(), (QStringList{"all.cov", "ten.cov"}));
  load("ten.cov");
  EXPECT_EQ(form1().Image2[3].left(), 100) << "the fraction is dropped, not rounded";
  EXPECT_EQ(form1().Image2[3].top(), -20);
  EXPECT_EQ(form1().Label9[9].fontName().toStdString(), "Verdana");
  EXPECT_EQ(state().globals.LastCoverIndex->value(), 9);
  EXPECT_EQ(form4().Combo4->text().toStdString(), "10");
  EXPECT_TRUE(form1().Image2[9].isVisible());
  EXPECT_FALSE(form1().Image2[10].isVisible());
  EXPECT_EQ(form4().Text2->text().toStdString(), "ten.cov");
  load("all.cov");
  EXPECT_EQ(form1().Image2[3].left(), 7);
  EXPECT_TRUE(form1().Label10[27].isVisible());
}

TEST_F(Covers, StackTowardsTheMiddleAndFillTheirPlaces) {
  chooseCount(5);
  saveAs("five.cov");
  form1().Image2[4].setStretch(false);
  load("five.cov");
  std::vector<int> covers = {0, 1, 2, 3, 4};
  std::ranges::sort(covers, {}, [&](int cover) { return form1().Image2[cover].stackOrder(); });
  EXPECT_EQ(covers, (std::vector<int>{0, 1, 4, 3, 2})) << "from the bottom";
  EXPECT_TRUE(form1().Image2[4].as<bool>(Property::Stretch));
}

TEST_F(Covers, AnOlderFileLeavesTheCaptionsAlone) {
  chooseCount(3);
  saveAs("old.cov");
  const QList<QByteArray> lines = bytes("old.cov").split('\n');
  write("old.cov", lines.mid(0, 5 + 3 * 8).join('\n') + '\n');
  form1().Label9[0].setLeft(4321);
  form1().Label10[2].setOpaque(false);
  form4().Check5->setValue(0);
  load("old.cov");
  EXPECT_EQ(form1().Label9[0].left(), 4321);
  EXPECT_FALSE(form1().Label10[2].isOpaque());
  EXPECT_TRUE(form1().ucAniGIF1[2].isVisible()) << "the file says nothing of frames";
  write("old.cov", lines.mid(0, 5 + 3 * 8 + 2).join('\n') + '\n');
  EXPECT_THROW(load("old.cov"), RecordError);
}

TEST_F(Covers, RowsOfCoversBeyondTheLastAreReadAndDropped) {
  const struct {
    const char* told;
    int rows;
  } files[] = {{"40", 41}, {"40", 28}, {"29", 30}, {"28", 29}, {"2147483647", 29}, {"1E+300", 200}};
  for (const auto& [told, rows] : files) {
    SCOPED_TRACE(told);
    form1().Label10[27].setLeft(7);
    form4().Check3->setValue(0);
    write("long.cov", layoutOf(told, rows));
    load("long.cov");
    EXPECT_EQ(state().globals.LastCoverIndex->value(), 28);
    EXPECT_EQ(form1().Label10[27].left(), 30);
    EXPECT_TRUE(form4().Check3->isTicked());
    EXPECT_EQ(form4().Combo4->text().toStdString(), "29");
    world.dialogs.answers.enqueue(true);
    saveAs("again.cov");
    EXPECT_EQ(bytes("again.cov").count("\r\n"), linesOf(29));
    load("again.cov");
  }
}

TEST_F(Covers, ANameWithoutExtensionGetsOneAndOthersAreRefused) {
  saveAs("mine");
  form4().Text2->setText("Other.COV");
  world.dialogs.answers.enqueue(true);
  designer->save();
  EXPECT_EQ(form4().File1->list(), (QStringList{"mine.cov", "Other.COV"}));
  const QStringList before = files();
  for (const char* name : {"", "..", ".cov", "mine.txt", "mine.", "a/b.cov", "a\\b.cov", "a..cov", "..\\x"}) {
    saveAs(name);
    EXPECT_EQ(world.dialogs.messages.last().title.toStdString(), "Save Cover File") << name;
    world.dialogs.messages.clear();
    world.dialogs.answers.enqueue(true);
    designer->save();
    EXPECT_EQ(world.dialogs.messages.size(), 2) << name;
  }
  EXPECT_EQ(files(), before);
}

TEST_F(Covers, AHostileCountIsKeptInBounds) {
  for (const QByteArray& bytes : {QByteArray(" 0 \r\n 32000 \r\nAlbum Covers\r\n"), layoutOf("28", 5)}) {
    write("bad.cov", bytes);
    EXPECT_THROW(load("bad.cov"), RecordError);
  }
  write("worse.cov", " 0 \r\n-7 \r\nAlbum Covers\r\nAlbum Frames\r\nAlbum Title\r\n");
  load("worse.cov");
  EXPECT_EQ(state().globals.LastCoverIndex->value(), -1);
  EXPECT_FALSE(form1().Image2[0].isVisible());
  saveAs("again.cov");
  EXPECT_EQ(bytes("again.cov").count("\r\n"), linesOf(0));
}

}  // namespace
}  // namespace veneerer
