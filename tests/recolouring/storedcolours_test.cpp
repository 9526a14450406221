// Which colours a Skin stores, and what its screens look like in others.
#include "recolouring/storedcolours.h"

#include <QPainter>
#include <QSet>

#include "canvas/screens.h"
#include "designer/restoredstate.h"
#include "designer/skinfixture.h"
#include "painting/canvaspainter.h"
#include "problems/hints.h"
#include "recolouring/faintcaptions.h"
#include "records/coverfile.h"
#include "records/layoutwriter.h"
#include "skin/skinsaver.h"
#include "support/shippedskins.h"

namespace veneerer {
namespace {

class StoredColours : public test::SkinFixture {
protected:
  void SetUp() override {
    test::copyShippedSkin("Copper_Lounge(1024x768)", root.path(), "S");
    start();
  }
  /// All that a save writes, the cover file included.
  QByteArray written(const Dress& dress) {
    QByteArray all;
    for (const NewFile& file : composedRecords(state(), dress)) all += file.bytes;
    return all + composeRecords(coverFile(state(), "a.cov", state().globals.LastCoverIndex->value()), dress);
  }
  /// Each of these places in a colour of its own.
  static Dress distinct(const std::vector<ColourPlace>& places) {
    Dress dress;
    int number = 0x400001;
    for (const ColourPlace& place : places) dress.put(*place.element, place.property, Colour(number++));
    return dress;
  }
  Dress turned(const ColourTurn& turn) { return recoloured(storedColours(state()), {{}, turn}); }
  QImage painted(int entry, const Dress& dress) {
    QImage image(1024, 768, QImage::Format_RGB32);
    CanvasPainter canvas;
    canvas.setStage(stageOf(state(), entry));
    canvas.setDress(dress);
    QPainter painter(&image);
    canvas.paint(painter, form1(), image.rect(), 1.0 / 15, 1.0 / 15);
    return image;
  }
};

TEST_F(StoredColours, AreThoseThatASaveWritesAndNoOthers) {
  const std::vector<ColourPlace> stored = storedColours(state());
  const Dress dress = distinct(stored);
  QSet<QByteArray> lines;
  for (const QByteArray& line : written(dress).split('\n')) lines.insert(line.trimmed());
  int missing = 0;
  for (const DressedColour& each : dress.colours())
    if (!lines.contains(QByteArray::number(each.colour.number()))) ++missing;
  // Of lines that a load gives to another element than a save takes them from, both count.
  EXPECT_LE(missing, 8);
  EXPECT_GT(stored.size(), 800U);

  std::vector<ColourPlace> others = colourPlaces(state());
  std::erase_if(others, [&](const ColourPlace& place) { return std::ranges::count(stored, place) > 0; });
  EXPECT_FALSE(others.empty());
  EXPECT_EQ(written(distinct(others)), written({}));
}

TEST_F(StoredColours, OfAScreenStandOnIt) {
  const std::vector<ColourPlace> all = storedColours(state());
  std::size_t sum = 0;
  for (int entry = 0; entry < 32; ++entry) {
    const std::vector<ColourPlace> there = onScreen(state(), all, entry);
    sum += there.size();
    for (const ColourPlace& place : there) {
      const Element* top = place.element;
      while (!isScreen(state(), *top) && top->container()->container()) top = top->container();
      EXPECT_TRUE(top == &screenOf(state(), entry) || (entry == 0 && !isScreen(state(), *top)))
          << place.element->key().toStdString();
    }
  }
  const auto samples = std::ranges::count_if(
      all, [&](const ColourPlace& place) { return &place.element->window() == &state().form6; });
  EXPECT_EQ(sum + static_cast<std::size_t>(samples), all.size()) << "the samples are on no screen";
}

TEST_F(StoredColours, AreSeenInADressAsTheyWillBe) {
  const ColourTurn turn{.hue = 100, .saturation = -20, .lightness = 10};
  const Dress dress = turned(turn);
  QList<QImage> before;
  QList<QImage> shown;
  for (int entry = 0; entry < 32; ++entry) {
    before << painted(entry, {});
    shown << painted(entry, dress);
    EXPECT_NE(before[entry], shown[entry]);
  }
  const test::RestoredState untouched(state());
  designer->recolour(dress);
  for (int entry = 0; entry < 32; ++entry) EXPECT_EQ(painted(entry, {}), shown[entry]) << entry;
  EXPECT_TRUE(turned({}).isEmpty());

  EXPECT_EQ(designer->history().stack().count(), 1);
  EXPECT_EQ(designer->history().stack().text(0).toStdString(), "Recolour");
  designer->history().undo();
  EXPECT_EQ(untouched.difference(test::RestoredState(state())), "");
}

TEST_F(StoredColours, TheFaintCaptionsAreThoseThatTheHintsWouldTellAndDidNot) {
  const auto faintNow = [&] {
    Hints hints(state(), Screen());
    QSet<QString> faint;
    for (const Family* family : form1().families())
      for (const Element* element : family->members())
        if (element->container() && !hints.byGround(*element).isEmpty()) faint.insert(element->key());
    return faint;
  };
  form1().lvButtons_H1[2].setForeColor(form1().lvButtons_H1[2].backColor());
  const QSet<QString> before = faintNow();
  FaintCaptions faint(state(), Screen());
  const Dress dress = turned({.hue = 30, .lightness = 60});
  const auto faintInThatDress = [&] {
    faint.judge(dress, 3);
    while (faint.work(7)) {
    }
    QSet<QString> found;
    for (const FaintCaption& each : faint.found()) {
      found.insert(each.element->key());
      EXPECT_GT(each.before, each.after);
    }
    return found;
  };
  const QSet<QString> found = faintInThatDress();
  Element& one = *faint.found().front().element;
  const QString caption = one.as<QString>(Property::Caption);
  one.set(Property::Caption, QString());
  EXPECT_EQ(faintInThatDress(), found) << "nothing is said to have changed";
  faint.forget();
  EXPECT_EQ(found - faintInThatDress(), QSet<QString>{one.key()}) << "an empty caption is read by nobody";
  one.set(Property::Caption, caption);
  designer->recolour(dress);
  EXPECT_EQ(found, faintNow() - before);
  EXPECT_GT(found.size(), 20);
  faint.judge({}, 3);
  EXPECT_FALSE(faint.work(1));
  EXPECT_TRUE(faint.found().empty());
}

}  // namespace
}  // namespace veneerer
