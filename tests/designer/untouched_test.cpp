// An operator's actions change what they name and nothing else.
#include <gtest/gtest.h>

#include <QSet>
#include <random>

#include "designer/skinfixture.h"
#include "elements/kinds.h"

namespace veneerer {
namespace {

class Untouched : public test::SkinFixture {
protected:
  using Values = QHash<const Element*, QList<Value>>;

  Values values() {
    Values all;
    for (const Family* family : form1().families())
      for (const Element* element : family->members())
        for (const PropertyDefault& each : propertiesOf(element->kind()))
          all[element].append(element->get(each.property));
    return all;
  }

  Element& anyElement() {
    const auto& families = form1().families();
    const auto& members = families[random_() % families.size()]->members();
    return *members[random_() % members.size()];
  }

  float anyDistance() { return static_cast<float>(random_() % 600) - 300; }

private:
  std::mt19937 random_{20};
};

TEST_F(Untouched, AHundredRandomDragsAndClicksReachOnlyTheirElements) {
  start();
  const Values before = values();
  QSet<const Element*> named;
  for (int action = 0; action < 100; ++action) {
    Element& element = anyElement();
    named.insert(&element);
    designer->press(element, 0, 0, MouseButton::Left);
    designer->move(element, anyDistance(), anyDistance(), MouseButton::Left);
    designer->click(element);
    // The one crossed target: a click on Label53 writes into Label1 at its index.
    if (element.family() == &form1().Label53) named.insert(&form1().Label1[element.index()]);
  }
  const Values after = values();
  int moved = 0;
  for (auto it = before.begin(); it != before.end(); ++it) {
    const bool isSame = after[it.key()] == it.value();
    EXPECT_TRUE(isSame || named.contains(it.key())) << it.key()->key().toStdString();
    moved += !isSame;
  }
  EXPECT_GT(moved, 50) << "most of the named ones did change";
}

}  // namespace
}  // namespace veneerer
