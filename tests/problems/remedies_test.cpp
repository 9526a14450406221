// Each remedy: the finding is there, the remedy is applied, the finding is gone, and an undo brings all back.
#include <gtest/gtest.h>

#include "designer/restoredstate.h"
#include "designer/skinfixture.h"
#include "panels/textureslots.h"
#include "problems/problemswatch.h"
#include "support/pictures.h"
#include "support/shippedskins.h"

namespace veneerer {
namespace {

class RemediesTest : public test::SkinFixture {
protected:
  void SetUp() override {
    start();
    QDir().mkpath(path(QStringLiteral("old")));
  }

  Findings warnings() {
    ProblemsWatch watch(state(), designer->skinFolder(), world.platform.screen, {}, kTouchPixels,
                        ProblemsWatch::Depth::Warnings);
    while (watch.work(50)) {
    }
    return watch.findings();
  }

  /// The finding of that text; one without text where there is none.
  Finding finding(const QString& text) {
    for (const Finding& found : warnings())
      if (found.text.contains(text)) return found;
    return {};
  }

  /// Applies that remedy of the finding, sees the finding gone, and everything back after an undo.
  void expectMends(
      const QString& text, RemedyKind kind, const std::function<void()>& then = [] {}) {
    const Finding found = finding(text);
    const auto remedy = std::find_if(found.remedies.begin(), found.remedies.end(),
                                     [&](const Remedy& each) { return each.kind == kind; });
    ASSERT_NE(remedy, found.remedies.end()) << text.toStdString();
    const test::RestoredState before(state());
    const int steps = designer->history().stack().count();
    designer->apply(*remedy);
    EXPECT_EQ(finding(text).text, QString()) << remedy->text.toStdString();
    EXPECT_EQ(designer->history().stack().count(), steps + (remedy->changes.isEmpty() ? 0 : 1));
    then();
    if (!remedy->changes.isEmpty()) designer->history().undo();
    EXPECT_EQ(before.difference(test::RestoredState(state())), "");
  }

  void refer(ImageSlot& slot, const QString& reference) {
    const History::Action action(designer->history());
    slot.setValue(reference);
  }

  ImageSlot& queue() { return state().names.ImageName[3]; }
};

TEST_F(RemediesTest, AMissingPictureIsTheLikeliestFileOfTheSkin) {
  test::writePicture(path(QStringLiteral("old/QUEUE.bmp")), 4, 4, Qt::red);
  test::writePicture(path(QStringLiteral("images/queue.png")), 4, 4, Qt::blue);
  test::writePicture(path(QStringLiteral("images/other.png")), 4, 4, Qt::blue);
  refer(queue(), QStringLiteral("\\images\\queue.bmp"));
  const Finding found = finding(QStringLiteral("queue.bmp\" is missing"));
  ASSERT_EQ(found.remedies.size(), 1);
  EXPECT_EQ(found.remedies[0].text, QStringLiteral("Found as \\old\\QUEUE.bmp: use it"));
  EXPECT_EQ(found.element, QStringLiteral("Form1.Picture1(3)"));
  expectMends(QStringLiteral("queue.bmp\" is missing"), RemedyKind::UsePicture, [&] {
    EXPECT_EQ(queue().text(), QStringLiteral("\\old\\QUEUE.bmp"));
    EXPECT_EQ(form1().Picture1[3].picture().image().pixelColor(1, 1), QColor(Qt::red));
  });
  QFile::remove(path(QStringLiteral("old/QUEUE.bmp")));
  EXPECT_EQ(finding(QStringLiteral("is missing")).remedies.value(0, Remedy{}).text,
            QStringLiteral("Found as \\images\\queue.png: use it"));
  QFile::remove(path(QStringLiteral("images/queue.png")));
  EXPECT_TRUE(finding(QStringLiteral("is missing")).remedies.isEmpty());
}

TEST_F(RemediesTest, APictureFromElsewhereIsCopiedUnderAFreeName) {
  const QString elsewhere = root.path() + QStringLiteral("/my, back.bmp");
  test::writePicture(elsewhere, 4, 4, Qt::green);
  test::writeBytes(path(QStringLiteral("images/MY_ back.bmp")), "somebody's");
  Button& button = form1().lvButtons_H1[2];
  world.dialogs.files.enqueue(elsewhere);
  designer->press(button, 0, 0, MouseButton::Right);
  const QString missing = QStringLiteral("comma cuts the image reference");
  EXPECT_FALSE(finding(missing).text.isEmpty());
  const Finding found = finding(QStringLiteral("my, back.bmp\" is missing"));
  ASSERT_EQ(found.remedies.size(), 1);
  EXPECT_TRUE(found.remedies[0].text.endsWith(QStringLiteral("writes \\images\\my_ back 2.bmp")))
      << found.remedies[0].text.toStdString();
  expectMends(QStringLiteral("back.bmp\" is missing"), RemedyKind::CopyPicture, [&] {
    EXPECT_EQ(test::bytesOf(path(QStringLiteral("images/my_ back 2.bmp"))), test::bytesOf(elsewhere));
    EXPECT_EQ(button.picture().path(), path(QStringLiteral("images/my_ back 2.bmp")));
  });
  EXPECT_EQ(test::bytesOf(path(QStringLiteral("images/MY_ back.bmp"))), "somebody's");
}

TEST_F(RemediesTest, ACopyNeverTakesTheNameOfAFileThatHasComeMeanwhile) {
  const QString elsewhere = root.path() + QStringLiteral("/back.bmp");
  test::writePicture(elsewhere, 4, 4, Qt::green);
  world.dialogs.files.enqueue(elsewhere);
  designer->click(state().form5.Image1[3]);
  const Finding found = finding(QStringLiteral("back.bmp\" is missing"));
  ASSERT_EQ(found.remedies.size(), 1);
  test::writeBytes(path(QStringLiteral("images/back.bmp")), "somebody's");
  const test::RestoredState before(state());
  designer->apply(found.remedies[0]);
  EXPECT_EQ(test::bytesOf(path(QStringLiteral("images/back.bmp"))), "somebody's");
  EXPECT_EQ(before.difference(test::RestoredState(state())), "");
  ASSERT_FALSE(world.dialogs.messages.isEmpty());
  EXPECT_TRUE(world.dialogs.messages.last().text.contains(QStringLiteral("is there by now")));
  QFile::remove(path(QStringLiteral("images/back.bmp")));
  for (int operation = 1; operation <= 2; ++operation) {
    world.disk.failAt(operation);
    designer->apply(found.remedies[0]);
    EXPECT_EQ(before.difference(test::RestoredState(state())), "") << operation;
    EXPECT_TRUE(test::filesBelow(path(QStringLiteral("images"))).isEmpty()) << operation;
  }
}

TEST_F(RemediesTest, APictureOfTheSkinGetsTheNameThatALoadFinds) {
  test::writePicture(path(QStringLiteral("images/back.bmp")), 900, 700, Qt::green);
  world.dialogs.files.enqueue(path(QStringLiteral("images/back.bmp")));
  designer->click(state().form5.Image1[0]);
  ASSERT_EQ(state().names.ImageName[0].text(), QStringLiteral("\\back.bmp"));
  expectMends(QStringLiteral("\"\\back.bmp\" is missing"), RemedyKind::UsePicture,
              [&] { EXPECT_EQ(state().names.ImageName[0].text(), QStringLiteral("\\images\\back.bmp")); });
  designer->click(*state().form5.Command1);
  ASSERT_TRUE(state().names.ImageName[13].text().startsWith(u'/'));
  expectMends(QStringLiteral("is named by its full path"), RemedyKind::UsePicture,
              [&] { EXPECT_EQ(state().names.ImageName[13].text(), QStringLiteral("\\images\\Player.bmp")); });
}

TEST_F(RemediesTest, ACaptionThatSpoilsItsFileIsReplaced) {
  Button& button = form1().lvButtons_H1[2];
  const auto give = [&](const char* caption) {
    designer->setProperty({&button}, Property::Caption, QString::fromLatin1(caption));
  };
  give("Rock, Pop");
  const QString cut = QStringLiteral("a comma cuts the caption");
  EXPECT_EQ(finding(cut).remedies.size(), 2);
  EXPECT_TRUE(finding(cut).remedies[1].text.contains(QStringLiteral("\"Rock; Pop\"")));
  expectMends(cut, RemedyKind::MendCaption,
              [&] { EXPECT_EQ(button.caption(), QString(QStringLiteral("Rock") + QChar(0x201A) + " Pop")); });
  give("\"Top\" 20");
  expectMends(QStringLiteral("begins with a double quote"), RemedyKind::MendCaption,
              [&] { EXPECT_EQ(button.caption(), QStringLiteral("Top 20")); });
  give("12,5");
  EXPECT_EQ(finding(cut).remedies.size(), 2);
  give("1\n2");
  expectMends(QStringLiteral("a line end cuts"), RemedyKind::MendCaption,
              [&] { EXPECT_EQ(button.caption(), QStringLiteral("1 2")); });
}

TEST_F(RemediesTest, AShapeWithoutItsPictureBecomesARectangle) {
  test::writePicture(path(QStringLiteral("images/shape.bmp")), 40, 40, Qt::green);
  Button& button = form1().lvButtons_H1[2];
  world.dialogs.files.enqueue(path(QStringLiteral("images/shape.bmp")));
  designer->press(button, 0, 0, MouseButton::Right);
  designer->setProperty({&button}, Property::ButtonShape, 7);
  ASSERT_EQ(button.buttonShape(), 7);
  world.dialogs.files.enqueue(QString());
  designer->press(button, 0, 0, MouseButton::Right);
  expectMends(QStringLiteral("the shape comes from a picture"), RemedyKind::DropShape,
              [&] { EXPECT_EQ(button.buttonShape(), 0); });
}

TEST_F(RemediesTest, TheResolutionFollowsARescale) {
  const QString differs = QStringLiteral("the resolution is 800 x 600, the canvas 1024 x 768 pixels");
  EXPECT_TRUE(finding(QStringLiteral("the resolution is")).text.isEmpty());
  test::writeBytes(path(QStringLiteral("resolution.ini")), "A\r\nB\r\nC\r\n800\r\n600\r\n");
  for (const char* name : {"Ten.cov", "Other.cov"}) test::writeBytes(path(QString::fromLatin1(name)), "");
  designer->type(*form4().Text2, QStringLiteral("Ten"));
  designer->type(*form6().Text7, QStringLiteral("1024"));
  designer->type(*form6().Text8, QStringLiteral("768"));
  designer->tick(*form6().Check2, 0);
  designer->click(*form6().Command10);
  const Finding covers = finding(QStringLiteral("its covers are placed for 800 x 600"));
  EXPECT_EQ(covers.file, QStringLiteral("Other.cov"));
  expectMends(differs, RemedyKind::SetResolution, [&] {
    EXPECT_EQ(form4().Text1[0].text(), QStringLiteral("1024"));
    EXPECT_EQ(form1().width(), 1024 * 15);
    EXPECT_EQ(form1().height(), 768 * 15);
  });
}

TEST_F(RemediesTest, TheTwinThatALoadReadsIsReplaced) {
  test::writeBytes(path(QStringLiteral("search_Choice.ini")), "new");
  EXPECT_TRUE(finding(QStringLiteral("differs from")).text.isEmpty());
  test::writeBytes(path(QStringLiteral("search_choice.ini")), "old");
  expectMends(QStringLiteral("differs from search_Choice.ini"), RemedyKind::CopyTwin);
  EXPECT_EQ(test::bytesOf(path(QStringLiteral("search_choice.ini"))), "new");
}

class LeftBehindTest : public RemediesTest {
protected:
  void SetUp() override {
    const QString shipped[] = {QStringLiteral("Black_and_Blue_gif_V8.0(800x600)"),
                               QStringLiteral("Copper_Lounge(1024x768)")};
    test::copyShippedSkin(shipped[0], root.path(), QStringLiteral("S"));
    test::copyShippedSkin(shipped[1], root.path(), QStringLiteral("T"));
    start();
  }
  std::string filesLeft() {
    QStringList files;
    for (const Finding& found : warnings())
      if (found.text.contains(QStringLiteral("as in the Skin before"))) files << found.file;
    return files.join(u' ').toStdString();
  }
};

TEST_F(LeftBehindTest, WhatAChangeOfSkinDoesNotReadIsTold) {
  const QString skinT = root.path() + QStringLiteral("/Skins/T/");
  EXPECT_EQ(filesLeft(), "");
  QFile::remove(skinT + QStringLiteral("queue.ini"));
  QFile::remove(skinT + QStringLiteral("free_credit.ini"));
  QFile::remove(skinT + QStringLiteral("images/star 0.png"));
  designer->reload(QStringLiteral("T"));
  const QString covers = QDir(skinT).entryList({QStringLiteral("*.cov")}).value(0);
  EXPECT_EQ(filesLeft(), "queue.ini confirm.ini free_credit.ini " + covers.toStdString());
  EXPECT_TRUE(finding(QStringLiteral("/Skins/S/images/star 0.png")).text.contains(u"of another Skin"));
  designer->history().undo();
  EXPECT_EQ(filesLeft(), "");
  designer->history().redo();
  EXPECT_NE(filesLeft(), "");
  designer->chooseTwice(*form4().File1, 0);
  world.dialogs.answers.enqueue(false);
  designer->save();
  EXPECT_EQ(filesLeft(), "");
}

}  // namespace
}  // namespace veneerer
