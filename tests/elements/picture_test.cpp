#include "elements/picture.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QTemporaryDir>

#include "support/pictures.h"

using namespace veneerer;

namespace {

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

TEST_F(PictureTest, ADrawnPictureHasNoPath) {
  const Picture drawn = Picture::drawn(QImage(2, 2, QImage::Format_RGB32));
  EXPECT_TRUE(drawn.isDrawn());
  EXPECT_EQ(drawn.path(), QString());
  EXPECT_EQ(drawn.image().size(), QSize(2, 2));
  EXPECT_FALSE(Picture().isDrawn());
}
