#include "images/picturetrials.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/hostilepictures.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

TEST(PictureTrials, DecodeEachFileOnceAndStopAtTheirAllowance) {
  const QTemporaryDir folder;
  const auto file = [&](const char* name, const QByteArray& bytes) {
    test::writeBytes(folder.filePath(QString::fromLatin1(name)), bytes);
    return folder.filePath(QString::fromLatin1(name));
  };
  const QByteArray png = test::flatPng({100, 100});
  QByteArray damaged = png;
  damaged[damaged.indexOf("IDAT") + 8] = '!';
  const QString first = file("1", png);
  PictureTrials trials(30'000);
  EXPECT_EQ(trials.of(first), PictureTrial::Fine);
  EXPECT_EQ(trials.of(file("2", damaged)), PictureTrial::Broken);
  EXPECT_EQ(trials.of(file("3", test::scannedJpeg(200))), PictureTrial::Broken);
  EXPECT_EQ(trials.of(file("4", "no picture")), PictureTrial::Broken);
  EXPECT_EQ(trials.untried(), 0);
  EXPECT_EQ(trials.of(file("5", png)), PictureTrial::Untried);
  EXPECT_EQ(trials.of(file("6", test::flatPng({2, 2}))), PictureTrial::Untried) << "nothing is read any more";
  test::writeBytes(first, damaged);
  EXPECT_EQ(trials.of(first), PictureTrial::Fine) << "it was tried";
  EXPECT_EQ(trials.untried(), 2);
}

}  // namespace
}  // namespace veneerer
