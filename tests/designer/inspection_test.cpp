// What the inspector lists.
#include "editing/inspection.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "designer/skinfixture.h"
#include "records/coverfile.h"
#include "skin/recordplaces.h"
#include "support/translated.h"

namespace veneerer {
namespace {

class Inspection : public test::SkinFixture {};

TEST_F(Inspection, ListsAllThatASkinStoresOfTheCanvas) {
  start();
  const RecordPlaces places = writtenPlaces(state(), coverFileName(QStringLiteral("any")));
  int found = 0;
  for (const Family* family : form1().families())
    for (Element* element : family->members()) {
      const std::vector<Property> listed = inspectedProperties({element});
      for (const RecordPlace& place : places.of(*element)) {
        // The name of a picture's file is told as the picture.
        if (place.property == Property::Name) continue;
        ++found;
        EXPECT_GT(std::ranges::count(listed, place.property), 0)
            << element->key().toStdString() << ' ' << propertyName(place.property).latin1();
      }
    }
  EXPECT_GT(found, 5000);
}

TEST_F(Inspection, ATruthIsTypedAsItIsToldOrInEnglish) {
  const test::Translated german({{"Yes", "Ja"}, {"No", "Nein"}});
  EXPECT_EQ(valueText(true), QStringLiteral("Ja"));
  EXPECT_EQ(typedValue(Property::Visible, QStringLiteral(" ja ")), Value(true));
  EXPECT_EQ(typedValue(Property::Visible, QStringLiteral("NEIN")), Value(false));
  EXPECT_EQ(typedValue(Property::Visible, QStringLiteral("no")), Value(false));
  EXPECT_EQ(typedValue(Property::Visible, QStringLiteral("oui")), std::nullopt);
}

}  // namespace
}  // namespace veneerer
