// A Skin in which every value is distinct: each value comes back in its own element and property.
#include <gtest/gtest.h>

#include <QSet>

#include "designer/skinfixture.h"
#include "skin/catalogue.h"

namespace veneerer {
namespace {

class Distinct : public test::SkinFixture {
protected:
  static const Value& valueOf(const Row& row) {
    return row.field()->into.element->get(row.field()->into.property);
  }

  // The saver writes these and no loader reads them back into the same place.
  static bool isCrossed(const Row& row) {
    static const QSet<QString> crossed = {"Form1.lvButtons_H42(3)", "Form1.lvButtons_H49(7)",
                                          "Form1.lvButtons_H49(8)"};
    const Element* element = row.field() ? row.field()->into.element : nullptr;
    if (row.reference()) element = row.reference()->button;
    return element && crossed.contains(element->key());
  }

  // search_Choice.ini isn't read back under that name, so it is left out here.
  static bool isReadBack(const SaveEntry& entry) { return isLoaded(entry) && !entry.name; }
  static bool isReloaded(const SaveEntry& entry) {
    return std::ranges::find(reloadOrder(), entry.layout) != reloadOrder().end();
  }

  Value distinct(const Slot& slot) {
    const int n = ++counter_;
    const Property property = slot.property;
    if (property == Property::FontSize) return float(n % 90 + 5);
    if (property == Property::Alignment) return n % 3;
    if (property == Property::Value) return n % 2;
    if (property == Property::ButtonShape) return n % 6 + 1;
    if (property == Property::ListIndex) return n % int(static_cast<RowList&>(*slot.element).list().size());
    if (property == Property::Text) return QString::number(n % 20 + 1);
    if (propertyType(property) == ValueType::Text) return QStringLiteral("Text %1").arg(n);
    if (propertyType(property) == ValueType::Single) return float(n) + 0.5f;
    if (propertyType(property) == ValueType::Colour) return Colour(n);
    return n;
  }

  void fill(State& state) {
    for (const SaveEntry& entry : saveOrder()) {
      if (!isReadBack(entry)) continue;
      const Layout layout = entry.layout(state);
      for (const Row& row : layout.rows()) {
        if (row.reference())
          row.reference()->from->setValue(QStringLiteral("\\images\\%1.bmp").arg(++counter_));
        if (const Field* field = row.field())
          field->into.element->set(field->into.property, distinct(field->into));
      }
    }
  }

  void compare(State& written, State& read, bool isReload) {
    int compared = 0;
    for (const SaveEntry& entry : saveOrder()) {
      if (!isReadBack(entry) || (isReload && !isReloaded(entry))) continue;
      const Layout from = entry.layout(written);
      const Layout to = entry.layout(read);
      for (std::size_t i = 0; i < from.size(); ++i) {
        const Row& row = from.rows()[i];
        const std::string where = QStringLiteral("%1:%2").arg(from.fileName()).arg(i + 1).toStdString();
        if (row.why || isCrossed(row)) continue;
        if (row.reference()) {
          EXPECT_EQ(row.reference()->into->value(), to.rows()[i].reference()->into->value()) << where;
        }
        if (row.field()) {
          EXPECT_EQ(valueOf(row), valueOf(to.rows()[i]))
              << where << " " << row.field()->into.element->key().toStdString();
          ++compared;
        }
      }
    }
    EXPECT_GT(compared, 10000);
  }

private:
  std::int32_t counter_ = 100;
};

TEST_F(Distinct, ComesBackFieldByFieldAfterALoadAndAfterAReload) {
  makeSkin("Empty");
  start();
  fill(state());
  designer->saveTo(SkinFolder(root.path() + "/Skins/S"));
  test::ScriptedPlatform second;
  second.platform.folder.path = root.path();
  second.settings.values = world.settings.values;
  Designer loaded(second.platform);
  second.dialogs.answers.enqueue(true);
  loaded.startUp();
  compare(state(), loaded.state(), false);

  second.settings.values.insert("Settings/Skin", "Empty");
  Designer reloaded(second.platform);
  second.dialogs.answers.enqueue(true);
  reloaded.startUp();
  reloaded.reload("S");
  compare(state(), reloaded.state(), true);
}

}  // namespace
}  // namespace veneerer
