// Whole Skins: saved, loaded, copied, whatever they hold.
#include <QSet>
#include <algorithm>
#include <set>

#include "designer/restoredstate.h"
#include "designer/skinfixture.h"
#include "exchange/skincopy.h"
#include "laws/law.h"
#include "records/layoutreader.h"
#include "skin/catalogue.h"
#include "support/shippedskins.h"

namespace veneerer {
namespace {

using test::Dice;
using test::Files;

class Skins : public test::SkinFixture {
protected:
  Skins() {
    test::copyShippedSkin(QStringLiteral("Copper_Lounge(1024x768)"), root.path(), QStringLiteral("S"));
  }

  /// The fields that a save writes and a load reads back into the same place.
  std::vector<Field> fields() {
    std::vector<Field> all;
    for (const SaveEntry& entry : saveOrder()) {
      const Layout layout = entry.layout(state());
      if (!isLoaded(entry) || entry.name) continue;
      for (const Row& row : layout.rows())
        if (const Field* field = row.field(); field && !row.why && !isCrossed(*field)) all.push_back(*field);
    }
    return all;
  }
  // A later row of the same file reads another value into these.
  static bool isCrossed(const Field& field) {
    static const QSet<QString> kCrossed = {"Form1.lvButtons_H42(3)", "Form1.lvButtons_H49(7)",
                                           "Form1.lvButtons_H49(8)"};
    return kCrossed.contains(field.into.element->key());
  }

  /// A value that the field's form can bring back.
  static Value anyValue(const Field& field, Dice dice) {
    const Property property = field.into.property;
    switch (property) {
      case Property::FontSize:
        return static_cast<float>(dice.between(1, 200));
      case Property::Alignment:
        return dice.below(3);
      case Property::Value:
        return dice.below(2);
      case Property::ButtonShape:
        return dice.below(7);
      case Property::ListIndex:
        return dice.between(-1, int(static_cast<RowList&>(*field.into.element).list().size()) - 1);
      case Property::Text:
        return QString::number(dice.between(1, 28));
      default:
        break;
    }
    if (propertyType(property) == ValueType::Text)
      return QStringLiteral("%1 \u00fc #1").arg(dice.between(0, 999));
    if (propertyType(property) == ValueType::Single)
      return static_cast<float>(dice.between(field.aboveMinusOneOnly ? 0 : -80'000, 80'000)) / 4;
    if (propertyType(property) == ValueType::Colour) return Colour(dice.between(0, 0xFFFFFF));
    return dice.between(0, 4);
  }

  /// What an operator may have made of the Skin.
  void changeAnything() {
    const auto numbers = *rc::gen::container<std::vector<std::uint32_t>>(rc::gen::arbitrary<std::uint32_t>());
    const std::vector<Field> all = fields();
    for (const std::uint32_t number : numbers) {
      Dice dice(number);
      const Field& field = dice.oneOf(all);
      field.into.element->set(field.into.property, anyValue(field, dice));
    }
  }
  Files saved() {
    designer->saveTo(SkinFolder(root.path() + "/Skins/S"));
    return test::filesBelow(path({}));
  }
  /// The first line of each file that differs.
  static std::string differences(const Files& one, const Files& other) {
    std::string told = one.keys() == other.keys() ? "" : "other files\n";
    for (const QString& name : one.keys()) {
      const QList<QByteArray> a = one[name].split('\n'), b = other.value(name).split('\n');
      const auto line = std::ranges::mismatch(a, b).in1 - a.begin();
      if (a != b)
        told += (name + u':' + QString::number(line + 1)).toStdString() + a.value(line).toStdString() +
                " ->" + b.value(line).toStdString() + '\n';
    }
    return told;
  }
  void loadAnew() {
    designer = std::make_unique<Designer>(world.platform);
    start();
  }
};

TEST_F(Skins, ASaveIsIdempotentAndALoadBringsItBack) {
  start();
  test::tryLaw(12, [&] {
    changeAnything();
    const Files first = saved();
    RC_ASSERT(differences(first, saved()) == "");
    loadAnew();
    const test::RestoredState loaded(state());
    RC_ASSERT(differences(first, saved()) == "");
    RC_ASSERT(loaded.difference(test::RestoredState(state())) == "");
  });
}

TEST_F(Skins, ACopyIsWhatASaveMakes) {
  start();
  int number = 0;
  test::tryLaw(8, [&] {
    changeAnything();
    const QString made = root.filePath(QStringLiteral("made/%1").arg(++number));
    copySkin(state(), world.disk, path({}), made);
    RC_ASSERT(differences(test::filesBelow(made), saved()) == "");
  });
}

class LoadOrder : public Skins {
protected:
  using Slots = std::set<std::pair<const Element*, Property>>;

  /// What the rows of a layout fill; nothing when steps beside its lines may reach further.
  static std::optional<Slots> filledBy(const Layout& layout) {
    Slots filled;
    if (!layout.endSteps().empty()) return {};
    for (std::size_t i = 0; i < layout.size(); ++i) {
      const Row& row = layout.rows()[i];
      if (layout.stepAfter(i)) return {};
      if (const Field* field = row.field()) filled.emplace(field->into.element, field->into.property);
      if (const Reference* reference = row.reference()) {
        filled.emplace(reference->into, Property::Name);
        for (const Element* box : reference->boxes) filled.emplace(box, Property::Picture);
      }
    }
    filled.erase({nullptr, Property::Picture});
    return filled;
  }
  static bool areIndependent(const Layout& one, const Layout& other) {
    const auto a = filledBy(one), b = filledBy(other);
    return a && b && std::ranges::none_of(*a, [&](const auto& slot) { return b->contains(slot); });
  }
  void read(MakeLayout layout) {
    const SkinFolder folder(root.path() + "/Skins/S");
    const Screen screen;
    Loading loading{state(), folder, screen};
    const Layout made = layout(state());
    readRecordFile(made, folder.path() + u'/' + made.fileName(), loading);
  }
  test::RestoredState after(MakeLayout one, MakeLayout other) {
    designer->reload("Other");
    read(one);
    read(other);
    return test::RestoredState(state());
  }
};

TEST_F(LoadOrder, OfFilesThatFillNothingTogetherDoesntMatter) {
  test::copyShippedSkin(QStringLiteral("Daylight_Wide(1920x1080)"), root.path(), QStringLiteral("Other"));
  start();
  int compared = 0;
  test::tryLaw(12, [&] {
    const auto any = rc::gen::inRange<std::size_t>(0, loadOrder().size());
    const MakeLayout one = loadOrder()[*any].layout;
    const MakeLayout other = loadOrder()[*any].layout;
    RC_PRE(areIndependent(one(state()), other(state())));
    RC_ASSERT(after(one, other).difference(after(other, one)) == "");
    ++compared;
  });
  EXPECT_GT(compared, 5);
}

}  // namespace
}  // namespace veneerer
