#include <gtest/gtest.h>

#include <QBuffer>
#include <QImageReader>
#include <QTemporaryDir>

#include "design/design.h"
#include "design/screens.h"
#include "looks/colourtable.h"
#include "looks/gifwriter.h"
#include "looks/skinbuilder.h"
#include "support/designchecks.h"
#include "support/files.h"

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

TEST(Skins, ComeOutTheSameTwice) {
  QTemporaryDir first, second;
  Disk disk;
  buildSkin(first.path(), blackAndBlueLook(), disk);
  buildSkin(second.path(), blackAndBlueLook(), disk);
  const test::Files files = test::filesBelow(first.path());
  EXPECT_GT(files.size(), 60);
  EXPECT_EQ(files, test::filesBelow(second.path()));
}

TEST(Skins, AreThoseThatComeWithTheProgram) {
  QTemporaryDir made;
  Disk disk;
  for (const Look& look : {blackAndBlueLook(), copperLoungeLook(), daylightWideLook()})
    buildSkin(made.path(), look, disk);
  // Compressed pictures may differ with the library that writes them; the records may not.
  const QStringList records{"*.ini", "*.cov"};
  const auto shipped = test::filesBelow(QStringLiteral(VENEERER_SOURCE_DIR "/Skins"), records);
  const auto fresh = test::filesBelow(made.path() + "/Skins", records);
  EXPECT_TRUE(shipped.keys() == fresh.keys());
  for (const QString& name : fresh.keys())
    EXPECT_EQ(shipped.value(name), fresh.value(name)) << name.toStdString();
}

class EveryLook : public testing::TestWithParam<int> {
protected:
  EveryLook()
      : look(std::array{blackAndBlueLook, copperLoungeLook,
                        daylightWideLook}[static_cast<std::size_t>(GetParam())]()) {
    applyBuiltInDesign(state);
    design::Composer composer(state, look.plan, look.theme);
    design::composeCanvas(composer);
    // With the slider shown, the covers take the place of the button.
    if (look.plan.sliderUpright) state.form1.lvButtons_H3[1].setVisible(false);
  }

  Look look;
  State state;
};

TEST_P(EveryLook, KeepsEverythingInsideAndWhole) {
  EXPECT_EQ(test::failing(state.form1, test::keepsInside), "");
  EXPECT_EQ(test::failing(state.form1, test::showsWholeText), "");
  EXPECT_EQ(test::overlaps(state.form1, {"Label20+Label59"}), "");
}

// The colours that a text may stand on, one after the other.
void expectReadable(const design::Ground& inks, std::initializer_list<Colour> grounds) {
  for (const Colour ink : {inks.heading, inks.body, inks.muted, inks.accent})
    for (const Colour ground : grounds)
      EXPECT_GE(test::contrast(ink, ground), 4.5) << ink.number() << " on " << ground.number();
}

TEST_P(EveryLook, HasTextsThatAreReadableOnItsPictures) {
  const design::Theme& t = look.theme;
  const Palette& p = look.palette;
  expectReadable(t.screen, {t.screen.back, Colour::of(p.backdrop), Colour::of(p.backdropEnd)});
  expectReadable(t.header, {t.header.back, Colour::of(p.header), Colour::of(p.bar)});
  expectReadable(t.bar, {t.bar.back, Colour::of(p.bar), Colour::of(p.barEnd)});
  expectReadable(t.card, {t.card.back, Colour::of(p.barEnd), Colour::of(p.barEnd.lighter(130))});
  expectReadable(t.row, {t.row.back});
  expectReadable(t.field, {t.field.back});
  for (const Family* family : state.form1.families())
    for (const Element* element : family->members())
      if (element->kind() == Kind::Button) {
        EXPECT_TRUE(test::isReadable(*element)) << element->key().toStdString();
      }
}

INSTANTIATE_TEST_SUITE_P(Looks, EveryLook, testing::Range(0, 3));

}  // namespace
}  // namespace veneerer::looks
