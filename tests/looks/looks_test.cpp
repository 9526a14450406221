#include "looks/looks.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImageReader>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include "looks/colourtable.h"
#include "looks/gifwriter.h"
#include "looks/motifs.h"
#include "looks/palette.h"
#include "looks/plans.h"
#include "looks/skinbuilder.h"
#include "support/designchecks.h"
#include "support/files.h"
#include "support/pictures.h"

namespace veneerer::looks {
namespace {

// Enough colours and turns to fill the code table more than once.
QImage noise(int seed) {
  QImage image(120, 90, QImage::Format_RGB32);
  quint32 value = static_cast<quint32>(seed);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      value = value * 1664525u + 1013904223u;
      image.setPixel(x, y, qRgb(value >> 28 << 4, value >> 24 & 0xf0, 40));
    }
  return indexed(image);
}

TEST(Gif, ComesBackAsItWasWritten) {
  const QImage first = noise(1);
  QImage second = noise(2);
  second.setColorTable(first.colorTable());
  QByteArray bytes = gifFile({first, second}, {7, -1});
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer, "gif");
  ASSERT_EQ(reader.imageCount(), 2);
  for (const QImage& frame : {first, second})
    EXPECT_EQ(reader.read().convertToFormat(QImage::Format_RGB32),
              frame.convertToFormat(QImage::Format_RGB32));
  EXPECT_EQ(reader.nextImageDelay(), 70);
}

TEST(ColourTable, KeepsPicturesOfFewColours) {
  QImage image(64, 1, QImage::Format_RGB32);
  for (int x = 0; x < 64; ++x) image.setPixel(x, 0, qRgb(4 * x, 255 - x, x));
  EXPECT_EQ(indexed(image).convertToFormat(QImage::Format_RGB32), image);
}

QByteArrayList namesAndBytes(const MadeSkin& made) {
  QByteArrayList all;
  for (const NewFile& file : made.files) all << file.name.toUtf8() << file.bytes;
  return all;
}

TEST(Looks, ComeOutTheSameTwice) {
  const Wish wish = defaultsOf(kCopperLounge);
  const QByteArrayList files = namesAndBytes(drawSkin(wish));
  EXPECT_GT(files.size(), 200);
  EXPECT_EQ(files, namesAndBytes(drawSkin(wish)));
}

// Pictures may differ a little with the libraries and the fonts; the records may not.
void expectShipped(const NewFile& file, const QString& folder) {
  const QByteArray shipped = test::bytesOf(folder + file.name);
  if (shipped == file.bytes) return;
  const QImage picture = QImage::fromData(file.bytes);
  EXPECT_FALSE(picture.isNull()) << file.name.toStdString() << " is another one";
  EXPECT_LT(test::farthestBlock(picture, QImage::fromData(shipped)), 14) << file.name.toStdString();
}

TEST(Looks, AreTheShippedSkins) {
  int shipped = 0;
  for (const Look* look : allLooks()) {
    if (!look->shipped) continue;
    ++shipped;
    const QString folder = QStringLiteral(VENEERER_SOURCE_DIR "/Skins/") + look->shipped + '/';
    QStringList drawn;
    for (const NewFile& file : drawSkin(defaultsOf(*look)).files) {
      expectShipped(file, folder);
      drawn.append(file.name);
    }
    drawn.sort();
    EXPECT_EQ(drawn, test::filesBelow(folder).keys());
  }
  EXPECT_EQ(shipped, 3);
}

TEST(Looks, AreMadeWholeOrNotAtAll) {
  QTemporaryDir root;
  Disk disk;
  const Wish wish = defaultsOf(kPaper);
  int steps = 0;
  const auto goOn = [&](int done, int total, const QString&) {
    EXPECT_LE(done, total);
    return ++steps < 20;
  };
  EXPECT_THROW(makeSkin(disk, root.filePath("mine"), wish, goOn), GivenUp);
  EXPECT_TRUE(test::filesBelow(root.path()).isEmpty());
  EXPECT_EQ(makeSkin(disk, root.filePath("mine"), wish), QStringList());
  EXPECT_GT(test::filesBelow(root.path()).size(), 100);
  EXPECT_THROW(makeSkin(disk, root.filePath("mine"), wish), ExchangeError);
}

// How much of each of 6 by 4 fields a motif covers, from a for nothing to z for all.
std::string coverageOf(Motif motif) {
  QImage image(240, 160, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter painter(&image);
  paintMotif(painter, image.rect(), motif, Qt::white);
  painter.end();
  std::string rows;
  for (int y = 0; y < 160; y += 40) {
    for (int x = 0; x < 240; x += 40) {
      double light = 0;
      for (int i = 0; i < 1600; ++i) light += qGray(image.pixel(x + i % 40, y + i / 40)) / 255.0;
      rows += static_cast<char>('a' + static_cast<int>(light * 25 / 1600));
    }
    rows += ' ';
  }
  return rows;
}

TEST(Motifs, CoverTheirPartsOfAPicture) {
  EXPECT_EQ(coverageOf(Motif::Rings), "ddeeee eddeee eeedee eeeeee ");
  EXPECT_EQ(coverageOf(Motif::Slats), "jjjmjl jlmjij jjmjlg lmjijg ");
  EXPECT_EQ(coverageOf(Motif::Bubbles), "aaaaaf aaaaau haaaqy zognzz ");
  EXPECT_EQ(coverageOf(Motif::Bands), "aaaaaa aaaaah aaaadr aaabsc ");
  EXPECT_EQ(coverageOf(Motif::Grid), "aaaaaa aaaaaa ghgghg dddddd ");
  EXPECT_EQ(coverageOf(Motif::Grain), "eeeeee eeedee eeeeee eeeeee ");
  EXPECT_EQ(coverageOf(Motif::Plain), "aaaaaa aaaaaa aaaaaa aaaaaa ");
  EXPECT_EQ(coverageOf(Motif::Waves), "aaaaaa aaaaaa njlqtq zzzzzz ");
}

TEST(Sizes, AreThoseOfScreens) {
  for (const QSize size :
       {QSize(640, 480), QSize(640, 1138), QSize(1080, 1920), QSize(3440, 1440), QSize(3840, 2160)})
    EXPECT_EQ(faultOfSize(size).toStdString(), "");
  for (const QSize size :
       {QSize(639, 480), QSize(640, 479), QSize(3841, 2160), QSize(1000, 1800), QSize(2000, 800)})
    EXPECT_NE(faultOfSize(size).toStdString(), "");
}

TEST(Palette, MovesATextThatCouldNotBeReadAndTellsIt) {
  const Colours colours{QColor(200, 30, 30), QColor(20, 20, 60), QColor(30, 30, 80)};
  const Scheme scheme = schemeOf(kPaper, colours);
  ASSERT_EQ(scheme.notes.size(), 1);
  EXPECT_TRUE(scheme.notes.first().startsWith("The text colour #1E1E50 becomes #"));
  EXPECT_GE(test::contrast(scheme.theme.screen.body, Colour::of(colours.ground)), kLeastContrast);
  EXPECT_TRUE(schemeOf(kPaper, kPaper.colours).notes.isEmpty());
}

void expectReadable(const design::Ground& inks, std::initializer_list<QColor> grounds) {
  for (const Colour ink : {inks.heading, inks.body, inks.muted, inks.accent})
    for (const QColor& ground : grounds)
      EXPECT_GE(test::contrast(ink, Colour::of(ground)), kLeastContrast)
          << ink.toQColor().name().toStdString() << " on " << ground.name().toStdString();
}

// Greys in the middle are the hardest: there is hardly an ink that can be read on them.
TEST(Palette, KeepsEveryInkReadable) {
  std::vector<Colours> triples{{Qt::yellow, QColor(118, 118, 118), Qt::gray},
                               {QColor(120, 120, 120), QColor(128, 128, 128), QColor(130, 130, 130)}};
  QRandomGenerator random(5);
  const auto any = [&] { return QColor::fromRgb(random.generate()); };
  for (int i = 0; i < 12; ++i) triples.push_back({any(), any(), any()});
  for (const Look* look : allLooks())
    for (const Colours& colours : triples) {
      const auto [theme, p, notes] = schemeOf(*look, colours);
      expectReadable(theme.screen, {p.backdrop, p.backdropEnd});
      expectReadable(theme.header, {p.header, p.bar});
      expectReadable(theme.bar, {p.bar, p.barEnd});
      expectReadable(theme.card, {p.card, p.cardEnd});
      expectReadable(theme.row, {theme.row.back.toQColor()});
      expectReadable(theme.field, {theme.field.back.toQColor()});
    }
}

}  // namespace
}  // namespace veneerer::looks
