#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTemporaryDir>

#include "forms/form1.h"
#include "painting/anigif.h"
#include "support/hostilepictures.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

class Animation : public testing::Test {
protected:
  Animation() {
    form.Picture2[3].setContainer(form);
    show(0, test::blinkingGif());
    form.ucAniGIF1[0].setContainer(form.Picture2[3]);
  }

  void show(int index, const QByteArray& bytes) {
    form.ucAniGIF1[index].setContainer(form);
    const QString path = folder.filePath(QString::number(++files_));
    test::writeBytes(path, bytes);
    form.ucAniGIF1[index].setPicture(pictures.load(path));
  }
  /// The frames that are shown moving.
  QList<int> playing(ucAniGIF& player) {
    QList<int> indices;
    for (int i = 0; i <= 4; ++i)
      if (!player.frame(form.ucAniGIF1[i]).isNull()) indices.append(i);
    return indices;
  }

  template <class Condition>
  static bool waitFor(Condition condition) {
    QDeadlineTimer deadline(10'000);
    while (!condition() && !deadline.hasExpired()) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return condition();
  }

  QTemporaryDir folder;
  PictureStore pictures;
  Switchboard board;
  Form1 form{board};

private:
  int files_ = 0;
};

TEST_F(Animation, PlaysWhileItIsShown) {
  int repaints = 0;
  ucAniGIF player(form, [&](const Element& element) { repaints += &element == &form.ucAniGIF1[0]; });
  const Element& element = form.ucAniGIF1[0];
  const auto shows = [&](QColor colour) {
    const QImage frame = player.frame(element);
    return !frame.isNull() && frame.pixelColor(0, 0) == colour;
  };
  EXPECT_TRUE(waitFor([&] { return shows(Qt::blue); }));
  EXPECT_TRUE(waitFor([&] { return shows(Qt::red); }));
  EXPECT_GE(repaints, 2);

  form.Picture2[3].setVisible(false);
  EXPECT_TRUE(waitFor([&] { return player.frame(element).isNull(); }));
  form.Picture2[3].setVisible(true);
  EXPECT_TRUE(waitFor([&] { return shows(Qt::blue); }));
  player.setWatched(false);
  EXPECT_TRUE(waitFor([&] { return player.frame(element).isNull(); }));
  player.setWatched(true);
  EXPECT_TRUE(waitFor([&] { return shows(Qt::blue); }));
  form.ucAniGIF1[0].setPicture(Picture());
  EXPECT_TRUE(player.frame(element).isNull());
}

TEST_F(Animation, PicturesThatDoNotMoveAreLeftAlone) {
  QImage plain(4, 4, QImage::Format_RGB32);
  plain.fill(Qt::red);
  form.ucAniGIF1[0].setPicture(Picture::drawn(plain));
  const QString still = folder.filePath("still.bmp");
  plain.save(still);
  show(1, test::bytesOf(still));
  show(2, test::blinkingGif().left(30));
  ucAniGIF player(form, [](const Element&) {});
  QCoreApplication::processEvents();
  EXPECT_EQ(playing(player), QList<int>());
}

TEST_F(Animation, WhatIsTooLargeToBePlayedStandsStill) {
  show(1, test::blinkingGif(2000, 1048));
  show(2, test::blinkingGif(2000, 1049));
  // The blocks of a comment, which each frame's decoding walks over.
  QByteArray comment("\x21\xFE", 2);
  for (qint64 i = 0; i <= kMostPlayedBytes / 256; ++i) comment += '\xFF' + QByteArray(255, ' ');
  QByteArray heavy = test::blinkingGif();
  heavy.insert(heavy.size() - 1, comment + '\0');
  show(3, heavy);
  ucAniGIF player(form, [](const Element&) {});
  EXPECT_EQ(playing(player), (QList<int>{0, 1}));
  EXPECT_EQ(form.ucAniGIF1[2].picture().image().size(), QSize(2000, 1049)) << "its first frame shows";
}

TEST_F(Animation, WhatPlaysAtOneTimeIsBoundedToo) {
  for (int i = 1; i <= 4; ++i) show(i, test::blinkingGif(2000, 1000));
  ucAniGIF player(form, [](const Element&) {});
  EXPECT_EQ(playing(player), (QList<int>{0, 1, 2}));
  form.ucAniGIF1[1].setVisible(false);
  show(3, test::blinkingGif(2000, 1000));
  EXPECT_TRUE(waitFor([&] { return playing(player) == QList<int>{0, 2, 3}; })) << "what goes makes room";
}

}  // namespace
}  // namespace veneerer
