#include "images/picture.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QColor>
#include <QTemporaryDir>

#include "images/picturecopies.h"
#include "support/hostilepictures.h"
#include "support/pictures.h"

using namespace veneerer;

namespace {

constexpr QSize kSize(9, 9);

struct PictureTest : testing::Test {
  QString path(const char* name) { return folder.filePath(QString::fromLatin1(name)); }
  QTemporaryDir folder;
  PictureStore store;
};

}  // namespace

TEST_F(PictureTest, OneFileIsDecodedOnce) {
  test::writePicture(path("a.bmp"), 3, 2, Qt::red);
  const Picture first = store.load(path("a.bmp"));
  const Picture second = store.load(path("a.bmp"));
  EXPECT_EQ(first, second);
  EXPECT_EQ(first.image().constBits(), second.image().constBits());
  EXPECT_EQ(first.image().size(), QSize(3, 2));
  EXPECT_EQ(first.path(), path("a.bmp"));
}

TEST_F(PictureTest, AFileWrittenAnewIsANewPicture) {
  test::writePicture(path("a.bmp"), 3, 2, Qt::red);
  const Picture before = store.load(path("a.bmp"));
  ASSERT_FALSE(before.image().isNull());
  test::writePicture(path("a.bmp"), 5, 5, Qt::blue);
  const Picture after = store.load(path("a.bmp"));
  EXPECT_NE(before, after);
  EXPECT_EQ(before.image().size(), QSize(3, 2));
  EXPECT_EQ(after.image().size(), QSize(5, 5));
}

TEST_F(PictureTest, WhatIsNoPictureHasNoImage) {
  EXPECT_TRUE(store.load(path("missing.bmp")).isNull());
  EXPECT_TRUE(store.load(folder.path()).isNull()) << "a folder is no file";
  ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe.bmp")).constData(), 0600), 0);
  EXPECT_TRUE(store.load(path("pipe.bmp")).isNull()) << "nobody writes into it, and nobody waits";
  EXPECT_TRUE(Picture().image().isNull());
  test::writeBytes(path("text.gif"), "no picture at all");
  EXPECT_TRUE(store.load(path("text.gif")).isNull());
  // A header that claims 65535 by 65535 pixels over no data.
  test::writeBytes(path("huge.gif"), QByteArray::fromHex("474946383961ffffffff000000"));
  test::writeBytes(path("cut.bmp"), QByteArray::fromHex("424d3600000000000000360000002800000003"));
  for (const char* name : {"huge.gif", "cut.bmp"}) {
    const Picture picture = store.load(path(name));
    EXPECT_FALSE(picture.isNull()) << name;
    EXPECT_TRUE(picture.image().isNull()) << name;
    EXPECT_FALSE(picture.isIcon()) << name;
  }
}

TEST_F(PictureTest, TheContentDecidesNotTheEnding) {
  test::writePicture(path("a.png"), 3, 2, Qt::red);
  ASSERT_TRUE(QFile::rename(path("a.png"), path("a.bmp")));
  EXPECT_EQ(store.load(path("a.bmp")).image().pixelColor(0, 0), QColor(Qt::red));
}

TEST_F(PictureTest, DecodedPixelsStayWithinTheBudget) {
  constexpr int kPictures = 5;
  constexpr qint64 kBytes = 4 * 30 * 20;
  PictureStore small(2 * kBytes);
  QList<Picture> pictures;
  for (int i = 0; i < kPictures; ++i) {
    const QString file = path("%1.png").arg(i);
    test::writePicture(file, 30, 20, QColor(i, 0, 0));
    pictures.append(small.load(file));
    EXPECT_EQ(small.decodedBytes(), std::min(i, 2) * kBytes) << "nothing is decoded before it is seen";
    EXPECT_EQ(pictures[i].image().pixelColor(3, 3), QColor(i, 0, 0));
  }
  EXPECT_EQ(small.decodedBytes(), 2 * kBytes);
  for (int i = 0; i < kPictures; ++i)
    EXPECT_EQ(pictures[i].image().pixelColor(3, 3), QColor(i, 0, 0)) << "decoded again";
  pictures.clear();
  EXPECT_EQ(small.decodedBytes(), 0) << "nobody shows them any more";
}

TEST_F(PictureTest, TheLeastRecentlySeenGoesFirst) {
  constexpr qint64 kBytes = 4 * 30 * 20;
  PictureStore small(2 * kBytes);
  QList<Picture> pictures;
  for (const char* name : {"a.png", "b.png", "c.png"}) {
    test::writePicture(path(name), 30, 20, Qt::red);
    pictures.append(small.load(path(name)));
  }
  pictures[0].image();
  pictures[1].image();
  pictures[0].image();
  pictures[2].image();
  QList<QString> fetched;
  small.fetchWith([&](const Picture& picture, const PictureNeed&) { fetched.append(picture.path()); });
  for (const Picture& picture : pictures) picture.shown(kSize);
  EXPECT_EQ(fetched, QList<QString>{path("b.png")});
}

TEST_F(PictureTest, BeyondWhatIsEnoughOnlyWhatTheLastTwoSightsShowedIsKept) {
  constexpr qint64 kBytes = 4 * 30 * 20;
  constexpr qint64 kEnough = 2 * kBytes;
  PictureStore roomy(6 * kBytes);
  QList<Picture> pictures;
  for (int i = 0; i < 8; ++i) {
    test::writePicture(path("%1.png").arg(i), 30, 20, Qt::red);
    pictures.append(roomy.load(path("%1.png").arg(i)));
  }
  roomy.look({pictures[0]}, kEnough);
  for (int i = 0; i < 4; ++i) pictures[i].image();
  EXPECT_EQ(roomy.decodedBytes(), 4 * kBytes) << "a sight may take more than enough";
  roomy.look({pictures[0]}, kEnough);
  pictures[4].image();
  EXPECT_EQ(roomy.decodedBytes(), 5 * kBytes) << "and so may the way back";
  roomy.look({pictures[0], Picture()}, kEnough);
  EXPECT_EQ(roomy.decodedBytes(), kEnough);
  QList<Picture> fetched;
  roomy.fetchWith([&](const Picture& picture, const PictureNeed&) { fetched.append(picture); });
  for (const Picture& picture : pictures) picture.shown(kSize);
  EXPECT_EQ(fetched, pictures.sliced(1, 3) + pictures.sliced(5)) << "what was seen all the time stays";
  roomy.fetchWith({});
  for (const Picture& picture : pictures) picture.image();
  EXPECT_EQ(roomy.decodedBytes(), 6 * kBytes) << "the budget bounds a sight, too";
}

TEST_F(PictureTest, OfAVeryLargeOneOnlyWhatIsShownIsKept) {
  const QSize large(4000, 3000);
  test::writeBytes(path("a.png"), test::flatPng(large));
  const Picture picture = store.load(path("a.png"));
  EXPECT_FALSE(picture.size().isValid());
  const QImage reduced = picture.shown(QSize(600, 500));
  EXPECT_EQ(picture.size(), large);
  EXPECT_LE(reduced.width() * reduced.height(), kMostCopiedPixels + large.width());
  EXPECT_NEAR(double(reduced.width()) / reduced.height(), 4.0 / 3, 0.01);
  EXPECT_EQ(picture.shown(QSize(900, 200)).cacheKey(), reduced.cacheKey()) << "it has pixels enough";
  EXPECT_EQ(picture.shownCorner(QSize(1024, 9000)).size(), QSize(1024, 3000));
  EXPECT_EQ(picture.shownCorner(QSize(1024, 768)).size(), QSize(1024, 3000)) << "more is at hand";
  EXPECT_EQ(store.decodedBytes(), reduced.sizeInBytes() + 4 * 1024 * 3000);
  EXPECT_EQ(picture.shown(QSize(3000, 3000)).size(), large) << "it isn't made larger";
  EXPECT_EQ(picture.shownCorner(QSize(4000, 2000)).size(), large);
}

TEST_F(PictureTest, AWholeOneDoesntPushOutTheCopiesOfOthers) {
  constexpr int kPictures = 6;
  const QSize large(3000, 2000);
  PictureStore small(2 * 4 * 3000 * 2000 + kPictures * 4 * 9 * 9);
  QList<Picture> pictures;
  for (int i = 0; i < kPictures; ++i) {
    test::writeBytes(path("%1.png").arg(i), test::flatPng(large));
    pictures.append(small.load(path("%1.png").arg(i)));
    pictures[i].shownCorner(kSize);
  }
  for (const Picture& picture : pictures) EXPECT_EQ(picture.image().size(), large);
  int fetched = 0;
  small.fetchWith([&](const Picture&, const PictureNeed&) { ++fetched; });
  for (const Picture& picture : pictures) EXPECT_EQ(picture.shownCorner(kSize).size(), kSize);
  EXPECT_EQ(fetched, 0);
  EXPECT_FALSE(pictures.last().shown(large).isNull());
  EXPECT_TRUE(pictures.first().shown(large).isNull()) << "there is room for two";
}

TEST_F(PictureTest, AThumbnailIsNotKept) {
  test::writePicture(path("a.png"), 400, 200, Qt::red);
  const Picture picture = store.load(path("a.png"));
  EXPECT_EQ(picture.thumbnail(QSize(100, 100)).size(), QSize(100, 50));
  EXPECT_EQ(store.decodedBytes(), 0);
  picture.image();
  EXPECT_EQ(picture.thumbnail(QSize(100, 100)).size(), QSize(100, 50));
  EXPECT_EQ(picture.thumbnail(QSize(900, 900)).size(), QSize(400, 200));
  EXPECT_TRUE(Picture().thumbnail(QSize(9, 9)).isNull());
}

TEST_F(PictureTest, WhatIsShownMayComeLater) {
  test::writePicture(path("a.png"), 4, 4, Qt::red);
  test::writeBytes(path("broken.gif"), "GIF8 but no more");
  const Picture good = store.load(path("a.png"));
  const Picture broken = store.load(path("broken.gif"));
  int asked = 0;
  store.fetchWith([&](const Picture&, const PictureNeed&) { ++asked; });
  EXPECT_TRUE(good.shown(kSize).isNull());
  EXPECT_TRUE(broken.shown(QSize(2, 2)).isNull());
  EXPECT_EQ(asked, 2);
  good.image();
  broken.image();
  EXPECT_EQ(good.shown(kSize).size(), QSize(4, 4));
  EXPECT_TRUE(broken.shown(kSize).isNull());
  EXPECT_EQ(asked, 2) << "one that can't be decoded isn't tried again";
  store.fetchWith([](const Picture& picture, const PictureNeed& need) { picture.image(need); });
  test::writePicture(path("b.png"), 5, 5, Qt::red);
  EXPECT_EQ(store.load(path("b.png")).shown(kSize).size(), QSize(5, 5)) << "who fetches may wait for it";
}

TEST_F(PictureTest, ADrawnPictureHasNoPath) {
  const Picture drawn = Picture::drawn(QImage(2, 2, QImage::Format_RGB32));
  EXPECT_TRUE(drawn.isDrawn());
  EXPECT_EQ(drawn.path(), QString());
  EXPECT_EQ(drawn.image().size(), QSize(2, 2));
  EXPECT_FALSE(Picture().isDrawn());
}
