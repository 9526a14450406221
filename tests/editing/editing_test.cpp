// The designer's own hands, on a few elements in two containers.
#include <gtest/gtest.h>

#include "canvas/screens.h"
#include "editing/arranging.h"
#include "editing/outline.h"
#include "editing/setting.h"
#include "painting/hittest.h"

namespace veneerer {
namespace {

class Editing : public testing::Test {
protected:
  Editing() {
    form.setWidth(9000);
    form.setHeight(9000);
    Element& screen = form.Picture1[11];
    put(screen, form, QRectF(1000, 2000, 8000, 7000));
    put(a, form, QRectF(100, 300, 200, 100));
    put(b, screen, QRectF(500, 10, 400, 300));
    put(c, screen, QRectF(3000, 50, 600, 100));
    showScreen(state, 11);
  }
  static void put(Element& element, Element& container, const QRectF& place) {
    element.setContainer(container);
    element.setVisible(true);
    element.place(float(place.left()), float(place.top()), float(place.width()), float(place.height()));
  }
  std::vector<Element*> all() { return {&b, &a, &c}; }

  State state;
  Form1& form = state.form1;
  Button& a = form.lvButtons_H1[0];
  Label& b = form.Label16[3];
  Label& c = form.Label16[4];
};

TEST_F(Editing, AlignsOnTheScreenAcrossContainers) {
  struct Case {
    AlignTo line;
    Property property;
    float a;
    float c;
  };
  for (const Case& each : {Case{AlignTo::Left, Property::Left, 1500, 500},
                           {AlignTo::Right, Property::Left, 1700, 300},
                           {AlignTo::Centre, Property::Left, 1600, 400},
                           {AlignTo::Top, Property::Top, 2010, 10},
                           {AlignTo::Bottom, Property::Top, 2210, 210},
                           {AlignTo::Middle, Property::Top, 2110, 110}}) {
    alignElements(all(), each.line);
    EXPECT_EQ(a.as<float>(each.property), each.a) << int(each.line);
    EXPECT_EQ(c.as<float>(each.property), each.c) << int(each.line);
    EXPECT_EQ(windowRect(b), QRectF(1500, 2010, 400, 300)) << "the first one leads";
  }
}

TEST_F(Editing, DistributesTheGapsBetweenTheOutermost) {
  distributeElements(all(), Along::Across);
  EXPECT_EQ(a.left(), 100);
  EXPECT_EQ(c.left(), 3000);
  EXPECT_EQ(windowRect(b).left() - 300, 4000 - windowRect(b).right());
  distributeElements({&a, &c}, Along::Across);
  EXPECT_EQ(a.left(), 100) << "two have nothing to share";
}

TEST_F(Editing, ASizeKeepsTheShapeAndALookIsGivenOn) {
  a.setButtonShape(4);
  QList<Property> told;
  const Attachment watching =
      state.board.watch(a, [&](const Change& change) { told.append(change.property); });
  makeSameSize({&b, &a}, Sides::Width);
  EXPECT_EQ(a.width(), 400);
  EXPECT_EQ(a.height(), 100);
  EXPECT_EQ(a.buttonShape(), 4);
  EXPECT_EQ(told, (QList<Property>{Property::ButtonShape, Property::Width, Property::ButtonShape}));
  b.set(Property::FontName, QStringLiteral("DejaVu Serif"));
  b.set(Property::ForeColor, Colour(255));
  const CopiedLook look = lookOf(b);
  b.set(Property::ForeColor, Colour(7));
  giveLook(look, c);
  giveLook(look, a);
  EXPECT_EQ(c.fontName(), QStringLiteral("DejaVu Serif"));
  EXPECT_EQ(a.foreColor(), Colour(255)) << "what they have in common, as it was when it was copied";
  EXPECT_EQ(c.caption(), QString());
}

TEST_F(Editing, FindsElementsByWordsInAnyOrderAndUnderAPoint) {
  b.setCaption(QStringLiteral("Some Track"));
  const auto found = [&](const char* query) {
    QStringList keys;
    for (const OutlineEntry& entry : outlineOf(state))
      if (matches(entry, queryWords(QString::fromLatin1(query)))) keys.append(entry.key);
    return keys;
  };
  EXPECT_EQ(found("track some"), QStringList{QStringLiteral("Label16(3)")});
  EXPECT_TRUE(found("search RESULTS label16").contains(QStringLiteral("Label16(4)"))) << "by its screen";
  EXPECT_EQ(found("label16(4)"), QStringList{QStringLiteral("Label16(4)")});
  EXPECT_TRUE(found("1").contains(QStringLiteral("lvButtons_H1(0)"))) << "by its Section";
  EXPECT_TRUE(found("nothing of this").isEmpty());
  b.setVisible(false);
  const std::vector<Element*> under{&b, &form.Picture1[11]};
  EXPECT_EQ(elementsAt(state, 1600, 2020), under) << "hidden ones too, the topmost first";
  showScreen(state, 3);
  EXPECT_TRUE(elementsAt(state, 1600, 2020).empty()) << "but not those of other screens";
}

}  // namespace
}  // namespace veneerer
