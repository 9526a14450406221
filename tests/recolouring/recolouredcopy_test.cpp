// A Skin copied in other colours: what of its files changes, with every operation failing and every step
// given up.
#include "recolouring/recolouredcopy.h"

#include <QSet>

#include "comparison/comparison.h"
#include "designer/restoredstate.h"
#include "designer/skinfixture.h"
#include "exchange/skincopy.h"
#include "recolouring/storedcolours.h"
#include "support/fulldisk.h"
#include "support/pictures.h"
#include "support/shippedskins.h"

namespace veneerer {
namespace {

using test::Files;

class RecolouredCopies : public test::SkinFixture {
protected:
  void load(const QString& shipped) {
    test::copyShippedSkin(shipped, root.path(), "S");
    start();
  }
  QString made(const QString& name) const { return root.filePath("made/" + name); }
  NotRecoloured copy(const QString& name, const Recolouring& recolouring, const GoOn& goOn = {}) {
    return copyRecoloured(state(), world.platform, path({}), made(name), recolouring, goOn);
  }
  Files plainCopy() {
    copySkin(state(), world.disk, path({}), made("plain"));
    return test::filesBelow(made("plain"));
  }
  QStringList everything() const {
    QStringList names;
    QDirIterator it(root.filePath("made"), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) names << it.next();
    return names;
  }
};

TEST_F(RecolouredCopies, NothingTurnedChangesNoByte) {
  load("Copper_Lounge(1024x768)");
  const Files plain = plainCopy();
  for (const int hue : {0, 360}) {
    const QString name = QString::number(hue);
    const NotRecoloured kept = copy(name, {{{}, {.hue = hue}}, true});
    EXPECT_TRUE(kept.leftOut.isEmpty() && kept.pictures.isEmpty());
    EXPECT_EQ(test::filesBelow(made(name)), plain);
  }
}

TEST_F(RecolouredCopies, AReplacedColourChangesExactlyItsOwnPlaces) {
  load("Daylight_Wide(1920x1080)");
  const Files plain = plainCopy();
  // Black and white are those of elements that no file holds, too.
  const std::vector<ColourUse> uses = coloursInUse(state());
  const Colour from = std::ranges::find_if(uses, [](const ColourUse& use) {
                        return use.colour != Colour(0) && use.colour != Colour(0xFFFFFF);
                      })->colour;
  const Colour to(0x123457);
  const test::RestoredState before(state());
  copy("new", {{{{from.number(), to}}, {}}});
  EXPECT_EQ(before.difference(test::RestoredState(state())), "");

  const Differences differences =
      skinDifferences(SkinFolder(made("plain")), SkinFolder(made("new")), world.platform.screen);
  EXPECT_GT(differences.size(), 50);
  QSet<QString> files;
  for (const Difference& difference : differences) {
    ASSERT_TRUE(difference.kind == Difference::Kind::Line && difference.before && difference.after);
    EXPECT_EQ(difference.before->text.trimmed(), QString::number(from.number()));
    EXPECT_EQ(difference.after->text.trimmed(), QString::number(to.number()));
    files.insert(difference.file);
  }
  EXPECT_TRUE(files.contains("search_choice.ini")) << "no save writes it, but a load reads it";
  EXPECT_TRUE(files.contains("12 Covers.cov") && files.contains("8 Covers.cov"));

  test::copyShippedSkin("Daylight_Wide(1920x1080)", root.path(), "T");
  QDir(root.filePath("Skins/T")).removeRecursively();
  QDir().rename(made("new"), root.filePath("Skins/T"));
  designer->openSkin("T");
  for (const ColourUse& use : usesOf(storedColours(state()))) EXPECT_NE(use.colour, from);
  copyRecoloured(state(), world.platform, root.filePath("Skins/T"), made("back"),
                 {{{{to.number(), from}}, {}}});
  EXPECT_EQ(test::filesBelow(made("back")), plain) << "and back again to the byte";
}

TEST_F(RecolouredCopies, TheLinesOfACoverFileKeepTheirForm) {
  load("Copper_Lounge(1024x768)");
  const QByteArray cover = bytes("7 Coverflow.cov");
  QList<QByteArray> lines = cover.split('\n');
  const int red = 255;
  // Found by what the copy changes: the first colour of the titles.
  copy("first", {{{}, {.lightness = -10}}});
  const QList<QByteArray> changed = test::bytesOf(made("first/7 Coverflow.cov")).split('\n');
  ASSERT_EQ(changed.size(), lines.size());
  QList<qsizetype> colours;
  for (qsizetype i = 0; i < lines.size(); ++i)
    if (lines[i] != changed[i]) colours << i;
  ASSERT_GT(colours.size(), 4);
  lines[colours[0]] = "\t255";
  lines[colours[1]] = "  255   \r";
  lines[colours[2]] = "2.55E2\r";
  lines[colours[3]] = " 65280 \r";
  write("odd.cov", lines.join('\n'));
  write("short.cov", lines.first(colours[1] + 1).join('\n') + '\n');
  write("broken.cov", "1\r\nmany\r\n255\r\n");
  copy("second", {{{{red, Colour(0x010203)}}, {}}});
  const QByteArray number = QByteArray::number(0x010203);
  lines[colours[0]] = '\t' + number;
  lines[colours[1]] = "  " + number + "   \r";
  lines[colours[2]] = number + '\r';
  EXPECT_EQ(test::bytesOf(made("second/odd.cov")), lines.join('\n'));
  EXPECT_EQ(test::bytesOf(made("second/short.cov")), lines.first(colours[1] + 1).join('\n') + '\n');
  EXPECT_EQ(test::bytesOf(made("second/broken.cov")), bytes("broken.cov"));
}

TEST_F(RecolouredCopies, PicturesStayUnlessTheyAreAskedForAndThoseOutsideAlways) {
  start();
  test::writePicture(path("images/a.png"), 4, 4, Qt::red);
  test::writePicture(path("b.bmp"), 4, 4, Qt::red);
  test::writePicture(root.filePath("outside.png"), 4, 4, Qt::red);
  QFile::link(root.filePath("outside.png"), path("images/out.png"));
  write("images/broken.gif", "GIF89a");
  write("readme.txt", "read me");
  const QByteArray outside = test::bytesOf(root.filePath("outside.png"));
  const Files before = test::filesBelow(path({}));

  const ColourMap turn{{}, {.hue = 120}};
  EXPECT_TRUE(copy("without", {turn, false}).pictures.isEmpty());
  EXPECT_EQ(test::bytesOf(made("without/images/a.png")), bytes("images/a.png"));
  const NotRecoloured kept = copy("with", {turn, true});
  EXPECT_EQ(QImage(made("with/images/a.png")).pixelColor(1, 1), QColor(0, 255, 0));
  EXPECT_EQ(QImage(made("with/b.bmp")).pixelColor(1, 1), QColor(0, 255, 0));
  EXPECT_EQ(test::bytesOf(made("with/images/broken.gif")), "GIF89a");
  EXPECT_EQ(test::bytesOf(made("with/readme.txt")), "read me");
  ASSERT_EQ(kept.pictures.size(), 1);
  EXPECT_EQ(kept.pictures.first().name, "images/broken.gif");
  ASSERT_EQ(kept.leftOut.size(), 1);
  EXPECT_EQ(kept.leftOut.first().name, "images/out.png");
  EXPECT_EQ(test::bytesOf(root.filePath("outside.png")), outside);
  EXPECT_EQ(test::filesBelow(path({})), before) << "the Skin itself stays";
  EXPECT_TRUE(copy("replaced", {{{{255, Colour(0)}}, {}}, true}).pictures.isEmpty());
  EXPECT_EQ(test::bytesOf(made("replaced/b.bmp")), bytes("b.bmp")) << "replaced are stored colours alone";
}

TEST_F(RecolouredCopies, NothingIsLeftOfOneThatFailsOrIsGivenUp) {
  start();
  test::writePicture(path("images/a.png"), 300, 300, Qt::red);
  test::writePicture(path("images/b.bmp"), 300, 300, Qt::red);
  const Recolouring all{{{}, {.hue = 120}}, true};
  int steps = 0;
  world.disk.failAt(0);
  copy("whole", all, [&](int, int, const QString&) { return ++steps > 0; });
  const int operations = world.disk.operations;
  QDir(root.filePath("made")).removeRecursively();
  ASSERT_GT(operations, 60);
  ASSERT_GT(steps, operations) << "a picture tells more than one step";
  for (int failing = 1; failing <= operations; ++failing) {
    world.disk.failAt(failing);
    EXPECT_THROW(copy("whole", all), ExchangeError) << failing;
    world.disk.failAt(0);
    ASSERT_EQ(everything(), QStringList()) << failing;
  }
  for (const rlim_t room : {0, 1, 300}) {
    const test::FullDisk full(room);
    EXPECT_THROW(copy("whole", all), ExchangeError) << room;
    ASSERT_EQ(everything(), QStringList()) << room;
  }
  for (int last = 1; last <= steps; last += 7) {
    int done = 0;
    EXPECT_THROW(copy("whole", all, [&](int, int, const QString&) { return ++done < last; }), GivenUp);
    ASSERT_EQ(everything(), QStringList()) << last;
  }
  copy("whole", all);
  EXPECT_FALSE(everything().isEmpty());
}

}  // namespace
}  // namespace veneerer
