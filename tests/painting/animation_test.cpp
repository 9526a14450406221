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
    form.ucAniGIF1[0].setContainer(form.Picture2[3]);
    form.ucAniGIF1[0].setPicture(picture("frame.gif", test::blinkingGif()));
  }

  Picture picture(const char* name, const QByteArray& bytes) {
    const QString path = folder.filePath(QString::fromLatin1(name));
    test::writeBytes(path, bytes);
    return pictures.load(path);
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
  form.ucAniGIF1[0].setPicture(Picture());
  EXPECT_TRUE(player.frame(element).isNull());
}

TEST_F(Animation, PicturesThatDoNotMoveAreLeftAlone) {
  QImage plain(4, 4, QImage::Format_RGB32);
  plain.fill(Qt::red);
  form.ucAniGIF1[0].setPicture(Picture::drawn(plain));
  form.ucAniGIF1[1].setContainer(form);
  const QString still = folder.filePath(QStringLiteral("still.bmp"));
  plain.save(still);
  form.ucAniGIF1[1].setPicture(pictures.load(still));
  form.ucAniGIF1[2].setContainer(form);
  form.ucAniGIF1[2].setPicture(picture("broken.gif", test::blinkingGif().left(30)));
  ucAniGIF player(form, [](const Element&) {});
  QCoreApplication::processEvents();
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(player.frame(form.ucAniGIF1[i]).isNull()) << i;
}

TEST_F(Animation, WhatIsTooLargeToBePlayedStandsStill) {
  const auto show = [&](int index, const char* name, const QByteArray& bytes) {
    form.ucAniGIF1[index].setContainer(form);
    form.ucAniGIF1[index].setPicture(picture(name, bytes));
  };
  show(1, "wide.gif", test::blinkingGif(2000, 1048));
  show(2, "wider.gif", test::blinkingGif(2000, 1049));
  // The blocks of a comment, which each frame's decoding walks over.
  QByteArray comment("\x21\xFE", 2);
  for (qint64 i = 0; i <= kMostPlayedBytes / 256; ++i) comment += '\xFF' + QByteArray(255, ' ');
  QByteArray heavy = test::blinkingGif();
  heavy.insert(heavy.size() - 1, comment + '\0');
  show(3, "heavy.gif", heavy);
  ucAniGIF player(form, [](const Element&) {});
  const auto plays = [&](int index) { return !player.frame(form.ucAniGIF1[index]).isNull(); };
  EXPECT_TRUE(plays(0) && plays(1));
  EXPECT_FALSE(plays(2) || plays(3));
  EXPECT_EQ(form.ucAniGIF1[2].picture().image().size(), QSize(2000, 1049)) << "its first frame shows";
}

TEST_F(Animation, WhatPlaysAtOneTimeIsBoundedToo) {
  for (int i = 1; i <= 4; ++i) {
    form.ucAniGIF1[i].setContainer(form);
    const QByteArray name = QByteArray::number(i) + ".gif";
    form.ucAniGIF1[i].setPicture(picture(name.constData(), test::blinkingGif(2000, 1000)));
  }
  ucAniGIF player(form, [](const Element&) {});
  const auto playing = [&] {
    QList<int> indices;
    for (int i = 0; i <= 4; ++i)
      if (!player.frame(form.ucAniGIF1[i]).isNull()) indices.append(i);
    return indices;
  };
  EXPECT_EQ(playing(), (QList<int>{0, 1, 2}));
  form.ucAniGIF1[1].setVisible(false);
  form.ucAniGIF1[3].setPicture(picture("5.gif", test::blinkingGif(2000, 1000)));
  EXPECT_TRUE(waitFor([&] { return playing() == QList<int>{0, 2, 3}; })) << "what goes makes room";
}

}  // namespace
}  // namespace veneerer
