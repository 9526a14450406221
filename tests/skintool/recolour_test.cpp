// The command recolour by its words and exit statuses.
#include "skintool/batchrun.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

class RecolourCommand : public BatchTest {
protected:
  RecolourCommand() {
    test::writeBytes(path("paint.txt"),
                     "click \"Form1.lvButtons_H1(0)\"\ntick \"Form6.Option1(1)\"\ncolour 255\n"
                     "click Form6.Picture2\n");
    // What comes back in another form does so once.
    EXPECT_EQ(run({"save", skin(), "--to", skin(), "--script", path("paint.txt")}), 0) << err.toStdString();
    EXPECT_EQ(run({"save", skin(), "--to", skin()}), 0);
    test::writePicture(path("Skins/S/images/a.png"), 4, 4, Qt::red);
    test::writeBytes(path("Skins/S/images/b.gif"), "GIF89a");
  }
  int recolour(const QString& to, const QStringList& options) {
    return run(QStringList{"recolour", skin(), "--to", path(to)} + options);
  }
};

TEST_F(RecolourCommand, NothingTurnedChangesNoByte) {
  EXPECT_EQ(recolour("Skins/T", {"--hue", "0", "--saturation", "0", "--lightness", "0", "--pictures"}), 0);
  EXPECT_EQ(err, "");
  EXPECT_EQ(run({"diff", skin(), path("Skins/T")}), 0) << out.toStdString();
}

TEST_F(RecolourCommand, AReplacedColourChangesItsPlacesAlone) {
  EXPECT_EQ(recolour("Skins/T", {"--replace", "#FF0000=#0A0B0C"}), 0);
  EXPECT_EQ(run({"diff", skin(), path("Skins/T")}), 1);
  EXPECT_EQ(out, "menu.ini:9: Form1.lvButtons_H1(0).BackColor: 255 -> 789258\n");
  EXPECT_EQ(recolour("Skins/U", {"--replace", "#FF0001=#0A0B0C"}), 0);
  EXPECT_EQ(err, "#FF0001: no place has this colour\n");
  EXPECT_EQ(run({"diff", skin(), path("Skins/U")}), 0);
}

TEST_F(RecolourCommand, TurnsThePicturesInTheirCopyAndTellsWhichItCant) {
  EXPECT_EQ(recolour("Skins/T", {"--hue", "120"}), 0);
  EXPECT_EQ(QImage(path("Skins/T/images/a.png")).pixelColor(1, 1), QColor(Qt::red));
  EXPECT_EQ(run({"diff", skin(), path("Skins/T")}), 1);
  EXPECT_TRUE(out.contains("Form1.lvButtons_H1(0).BackColor: 255 -> 65280\n")) << out.toStdString();
  EXPECT_EQ(recolour("Skins/U", {"--hue", "120", "--pictures"}), 0);
  EXPECT_EQ(err, "images/b.gif: copied as it is: it can't be decoded\n");
  EXPECT_EQ(QImage(path("Skins/U/images/a.png")).pixelColor(1, 1), QColor(0, 255, 0));
}

TEST_F(RecolourCommand, RefusesWrongUseAndWritesNothing) {
  const QList<QStringList> wrong = {{"--hue", "361"},
                                    {"--hue", "1.5"},
                                    {"--saturation", "-101"},
                                    {"--lightness", "bright"},
                                    {"--replace", "#FF0000"},
                                    {"--replace", "red=blue"},
                                    {"--replace", "#FF0000=#00FF00=#0000FF"},
                                    {"--replace", "#F00=#00FF00"},
                                    {"--replace", "#FF0000=#00FF00", "--replace", "#ff0000=#0000FF"},
                                    {"--only", "Main Screen"}};
  for (const QStringList& options : wrong)
    EXPECT_EQ(recolour("Skins/T", options), 2) << options.join(' ').toStdString();
  EXPECT_FALSE(QFileInfo::exists(path("Skins/T")));
  EXPECT_EQ(recolour("Skins/S", {"--hue", "1"}), 2) << "it is there already";
  EXPECT_EQ(run({"recolour", skin(), "--hue", "1"}), 2);
  EXPECT_EQ(run({"copy", skin(), "--to", path("Skins/T"), "--hue", "1"}), 2);
  EXPECT_EQ(recolour("Skins/S/T", {"--hue", "1"}), 1) << "it would lie within the Skin";
}

}  // namespace
}  // namespace veneerer
