// What other programs write is followed: on real files, with short times.
#include "ui/diskfollower.h"

#include <QSignalSpy>
#include <QtTest>
#include <algorithm>

#include "designer/restoredstate.h"
#include "designer/skinfixture.h"
#include "support/pictures.h"
#include "ui/problemscount.h"
#include "ui/reloadbutton.h"

namespace veneerer {
namespace {

constexpr std::chrono::milliseconds kShort{20};
// Far more than any of it takes, milliseconds.
constexpr int kLong = 30000;

class FileWatchTest : public testing::Test {
protected:
  QString path(const char* name) const { return folder.path() + u'/' + QString::fromLatin1(name); }
  /// What has been told until that many files were.
  QSet<QString> told(int count) {
    QSet<QString> all;
    (void)QTest::qWaitFor(
        [&] {
          all.clear();
          for (const QList<QVariant>& call : spy) all |= call[0].value<QSet<QString>>();
          return all.size() >= count;
        },
        kLong);
    spy.clear();
    return all;
  }
  /// Long enough for anything that would be told.
  void rest() { QTest::qWait(6 * int(kShort.count())); }

  QTemporaryDir folder;
  Disk disk;
  FileWatch watch{disk, kShort};
  QSignalSpy spy{&watch, &FileWatch::changed};
};

TEST_F(FileWatchTest, TellsOfEveryWayAFileIsWritten) {
  const QString a = path("a.bmp");
  const QString b = path("b.bmp");
  test::writeBytes(a, "one");
  watch.watch({a, b});
  test::writeBytes(a, "written in place");
  EXPECT_EQ(told(1), QSet<QString>{a});
  for (int i = 0; i < 3; ++i) {
    QFile::remove(a);
    test::writeBytes(a, QByteArray(10 + i, 'x'));
    EXPECT_EQ(told(1), QSet<QString>{a}) << "deleted and made anew, " << i;
  }
  test::writeBytes(path("a.tmp"), "put in its place");
  QFile::remove(a);
  QFile::rename(path("a.tmp"), a);
  EXPECT_EQ(told(1), QSet<QString>{a});
  test::writeBytes(a, "and in place again");
  EXPECT_EQ(told(1), QSet<QString>{a});
  test::writeBytes(b, "it wasn't there");
  EXPECT_EQ(told(1), QSet<QString>{b});
  QFile::remove(b);
  EXPECT_EQ(told(1), QSet<QString>{b});
}

TEST_F(FileWatchTest, TellsNothingOfItsOwnDiskAndOfWhatIsAsBefore) {
  const QString a = path("a.bmp");
  test::writeBytes(a, "one");
  watch.watch({a});
  EXPECT_EQ(disk.overwrite(a, "ours"), QString());
  EXPECT_EQ(disk.create(path("a.tmp"), "ours too"), QString());
  EXPECT_EQ(disk.rename(path("a.tmp"), a), QString());
  test::writeBytes(path("stranger.bmp"), "nobody watches it");
  rest();
  EXPECT_TRUE(spy.isEmpty());
  test::writeBytes(a, "somebody else's");
  EXPECT_EQ(told(1), QSet<QString>{a});
}

TEST_F(FileWatchTest, WaitsWhileItIsHeld) {
  bool isHeld = true;
  watch.holdWhile([&] { return isHeld; });
  const QString a = path("a.bmp");
  watch.watch({a});
  test::writeBytes(a, "one");
  rest();
  EXPECT_TRUE(spy.isEmpty());
  isHeld = false;
  EXPECT_EQ(told(1), QSet<QString>{a});
}

class Following : public test::SkinFixture {
protected:
  void SetUp() override {
    test::writePicture(path(QStringLiteral("images/queue.bmp")), 8, 8, Qt::red);
    start();
    hands = std::make_unique<Operator>(*designer);
    pictures = std::make_unique<PictureFetcher>(*hands);
    disk = std::make_unique<DiskFollower>(*hands, *pictures, kShort);
    panel = std::make_unique<ProblemsPanel>(Ui{*hands, *pictures, *disk});
    refer(QStringLiteral("\\images\\queue.bmp"));
  }
  /// What is shown and named is watched from now on.
  void refer(const QString& reference) {
    {
      const History::Action action(designer->history());
      state().names.ImageName[3].setValue(reference);
      screen().setPicture(state().pictures.load(designer->skinFolder().resolve(reference)));
    }
    QTest::qWait(400);
  }
  PictureBox& screen() { return form1().Picture1[3]; }
  QColor shown() { return screen().picture().image().pixelColor(1, 1); }
  bool comes(const std::function<bool()>& holds) { return QTest::qWaitFor(holds, kLong); }

  std::unique_ptr<Operator> hands;
  std::unique_ptr<PictureFetcher> pictures;
  std::unique_ptr<DiskFollower> disk;
  std::unique_ptr<ProblemsPanel> panel;
};

TEST_F(Following, APaintedPictureIsShownAnewWithoutAStep) {
  const int steps = designer->history().stack().count();
  const test::RestoredState before(state());
  test::writePicture(path(QStringLiteral("images/queue.bmp")), 9, 9, Qt::blue);
  EXPECT_TRUE(comes([&] { return shown() == QColor(Qt::blue); }));
  EXPECT_EQ(designer->history().stack().count(), steps);
  EXPECT_EQ(before.difference(test::RestoredState(state())), "");
  designer->history().undo();
  EXPECT_TRUE(screen().picture().isNull());
  designer->history().redo();
  EXPECT_EQ(shown(), QColor(Qt::blue));
}

TEST_F(Following, WhatCannotBeDecodedLeavesTheOldPictureAndIsCounted) {
  EXPECT_EQ(shown(), QColor(Qt::red));
  const ProblemsCount count(*panel);
  const auto says = [&](const char* text) {
    return comes([&] { return count.text() == QLatin1String(text); });
  };
  EXPECT_TRUE(says("No problems")) << count.text().toStdString();
  write(QStringLiteral("images/queue.bmp"), "BM" + QByteArray(60, '\0'));
  EXPECT_TRUE(says("1 problem")) << count.text().toStdString();
  EXPECT_EQ(shown(), QColor(Qt::red));
  test::writePicture(path(QStringLiteral("images/queue.bmp")), 9, 9, Qt::green);
  EXPECT_TRUE(comes([&] { return shown() == QColor(Qt::green); }));
  EXPECT_TRUE(says("No problems")) << count.text().toStdString();
}

// Some disks tell nothing of what others write; nor does the system of what is written through the memory.
TEST_F(Following, LooksAtAllFilesWhenTheProgramGetsTheFocus) {
  ASSERT_EQ(shown(), QColor(Qt::red));
  const QString picture = path(QStringLiteral("images/queue.bmp"));
  test::writePicture(root.filePath(QStringLiteral("blue.bmp")), 8, 8, Qt::blue);
  const QByteArray blue = test::bytesOf(root.filePath(QStringLiteral("blue.bmp")));
  QFile file(picture);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.size() == blue.size());
  uchar* bytes = file.map(0, file.size());
  ASSERT_TRUE(bytes);
  std::ranges::copy(blue, bytes);
  file.unmap(bytes);
  QTest::qWait(6 * int(kShort.count()));
  EXPECT_EQ(shown(), QColor(Qt::red)) << "nobody told it";
  Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
  EXPECT_TRUE(comes([&] { return shown() == QColor(Qt::blue); }));
}

TEST_F(Following, AMissingPictureIsMissedUntilItComes) {
  EXPECT_FALSE(disk->misses(screen()));
  refer(QStringLiteral("\\images\\later.bmp"));
  EXPECT_TRUE(disk->misses(screen()));
  EXPECT_TRUE(disk->misses(state().form5.Image1[3]));
  EXPECT_FALSE(disk->misses(form1().Picture1[4]));
  const int steps = designer->history().stack().count();
  test::writePicture(path(QStringLiteral("images/later.bmp")), 9, 9, Qt::blue);
  EXPECT_TRUE(comes([&] { return shown() == QColor(Qt::blue); }));
  EXPECT_FALSE(disk->misses(screen()));
  EXPECT_EQ(designer->history().stack().count(), steps);
}

TEST_F(Following, RecordFilesOfAnotherHandAreOfferedToBeReadAgain) {
  ReloadButton reload(*hands, *disk);
  EXPECT_TRUE(reload.isHidden());
  const int steps = designer->history().stack().count();
  write(QStringLiteral("key_highlight.ini"), " 255 \r\n");
  EXPECT_TRUE(comes([&] { return !reload.isHidden(); }));
  EXPECT_TRUE(state().notes.texts().last().contains(u"key_highlight.ini"));
  EXPECT_NE(form6().Picture1->backColor(), Colour(255)) << "nothing is read unasked";
  reload.click();
  EXPECT_EQ(form6().Picture1->backColor(), Colour(255));
  EXPECT_TRUE(reload.isHidden());
  EXPECT_EQ(designer->history().stack().count(), steps + 1);
  world.dialogs.answers.enqueue(false);
  designer->save();
  QTest::qWait(6 * int(kShort.count()) + 200);
  EXPECT_TRUE(reload.isHidden()) << "our own save is no news";
}

}  // namespace
}  // namespace veneerer
