// What is painted, compared with pictures of how it looked when somebody last looked at it: all buttons
// and eight screens, in small. A failure leaves the picture and the difference beside it in
// build/*/pictures and says how to take it as the new one.
#include "support/pictures.h"

#include "skintool/batchrun.h"

namespace veneerer {
namespace {

constexpr double kMost = 14;     // of 255, that a block of pixels may differ in the mean
constexpr int kSmallSide = 320;  // pixels

class Pictures : public BatchTest {
protected:
  static void compare(const QImage& painted, const QString& expected) {
    const QImage picture =
        QImage(QStringLiteral(VENEERER_SOURCE_DIR "/") + expected).convertToFormat(painted.format());
    const QString left = QStringLiteral(VENEERER_BINARY_DIR "/pictures/") + QFileInfo(expected).fileName();
    QDir().mkpath(QFileInfo(left).path());
    QImage differences;
    const double far = test::farthestBlock(painted, picture, kMost, &differences);
    if (far <= kMost) return;
    painted.save(left);
    if (!differences.isNull()) differences.save(left.chopped(4) + "-difference.png");
    ADD_FAILURE() << expected.toStdString() << " looks otherwise, by " << far << ". See "
                  << left.toStdString() << "; to take it: cp " << left.toStdString() << ' '
                  << expected.toStdString();
  }

  /// Screens of a Skin by their entries; the files begin with their numbers.
  void compareScreens(const QString& skin, const QString& name, const QStringList& entries) {
    QStringList words{"render", skin, "--to", path(name)};
    for (const QString& entry : entries) words << "--only" << entry;
    ASSERT_EQ(run(words), 0) << err.toStdString();
    const QStringList files = QDir(path(name)).entryList(QDir::Files, QDir::Name);
    ASSERT_EQ(files.size(), entries.size());
    for (const QString& file : files)
      compare(QImage(path(name + '/' + file)).scaledToWidth(kSmallSide, Qt::SmoothTransformation),
              "tests/skintool/pictures/" + name + '-' + file.left(2) + ".png");
  }
};

TEST_F(Pictures, OfAllButtonsAreAsEver) {
  ASSERT_EQ(run({"buttons", "--to", path("buttons.png")}), 0);
  compare(QImage(path("buttons.png")).scaledToWidth(kSmallSide, Qt::SmoothTransformation),
          "tests/skintool/pictures/buttons.png");
}

TEST_F(Pictures, OfTheBuiltInDesignsScreensAreAsEver) {
  compareScreens(skin(), "design",
                 {"Main Screen", "Track Listing Screen", "Play Options Screen", "Licence Agreement Screen"});
}

TEST_F(Pictures, OfAShippedSkinsScreensAreAsEver) {
  compareScreens(VENEERER_SOURCE_DIR "/Skins/Copper_Lounge(1024x768)", "lounge",
                 {"Main Screen", "Queue Screen", "Album View", "Genre Selection Screen"});
}

}  // namespace
}  // namespace veneerer
