#include "images/picturetrials.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/hostilepictures.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

struct TriedFile {
  QString path;
  PictureTrial result;  ///< with an allowance of 30,000, asked in this order
};

QList<TriedFile> writeFiles(const QTemporaryDir& folder) {
  const QByteArray png = test::flatPng({100, 100});
  QByteArray damaged = png;
  damaged[damaged.indexOf("IDAT") + 8] = '!';
  const std::pair<QByteArray, PictureTrial> each[] = {
      {png, PictureTrial::Fine},
      {damaged, PictureTrial::Broken},
      {test::scannedJpeg(200), PictureTrial::Broken},
      {"no picture", PictureTrial::Broken},
      {png, PictureTrial::Untried},
      {test::flatPng({2, 2}), PictureTrial::Untried},  // nothing is read any more
  };
  QList<TriedFile> files;
  for (const auto& [bytes, result] : each) {
    files.append({folder.filePath(QString::number(files.size())), result});
    test::writeBytes(files.last().path, bytes);
  }
  return files;
}

TEST(PictureTrials, DecodeEachFileOnceAndStopAtTheirAllowance) {
  const QTemporaryDir folder;
  const QList<TriedFile> files = writeFiles(folder);
  PictureTrials trials(30'000);
  for (const TriedFile& file : files) EXPECT_EQ(trials.of(file.path), file.result) << qPrintable(file.path);
  test::writeBytes(files.first().path, "no picture");
  EXPECT_EQ(trials.of(files.first().path), PictureTrial::Fine) << "it was tried";
  EXPECT_EQ(trials.untried(), 2);
  trials.forget(files.first().path);
  EXPECT_EQ(trials.of(files.first().path), PictureTrial::Untried);
}

TEST(PictureTrials, SpendTheAllowanceInTheOrderOfExpectationsOnWhateverThread) {
  const QTemporaryDir folder;
  const QList<TriedFile> files = writeFiles(folder);
  for (int round = 0; round < 50; ++round) {
    PictureTrials trials(30'000);
    for (const TriedFile& file : files) trials.expect(file.path);
    for (qsizetype i = files.size() - 1; i >= 0; --i)
      EXPECT_EQ(trials.of(files[i].path), files[i].result) << i;
  }
}

}  // namespace
}  // namespace veneerer
