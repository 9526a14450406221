#include "elements/controls.h"

#include <gtest/gtest.h>

#include "support/testwindow.h"

using namespace veneerer;
using test::Notices;
using test::TestWindow;

namespace {

struct ComboTest : testing::Test {
  ComboTest() {
    combo.setRows({"One", "UNUSED", "UNUSED"});
    window.told.clear();
  }
  TestWindow window;
  ComboBox& combo = *window.Combo1;
  const QString key = "Form9.Combo1";
};

}  // namespace

TEST_F(ComboTest, EverySelectionIsTold) {
  EXPECT_TRUE(combo.select(2));
  EXPECT_TRUE(combo.select(2));
  EXPECT_TRUE(combo.set(Property::ListIndex, 2));
  const Notices expected = {
      {key, Property::ListIndex, -1}, {key, Property::ListIndex, 2}, {key, Property::ListIndex, 2}};
  EXPECT_EQ(window.told, expected) << "and its text is no change of the text";
  EXPECT_EQ(combo.text(), u"UNUSED");
  EXPECT_EQ(combo.listIndex(), 2);
}

TEST_F(ComboTest, NoRowMeansNoTextAndRowsOutsideTheListAreRefused) {
  EXPECT_TRUE(combo.select(-1));
  EXPECT_EQ(combo.text(), u"");
  combo.select(0);
  window.told.clear();
  EXPECT_FALSE(combo.select(3));
  EXPECT_FALSE(combo.select(-2));
  EXPECT_EQ(combo.listIndex(), 0);
  EXPECT_EQ(window.told, Notices());
}

TEST_F(ComboTest, ATextIsNoSelection) {
  combo.setText("UNUSED");
  EXPECT_EQ(combo.listIndex(), 1) << "the first entry of that text";
  combo.setText("unused");
  EXPECT_EQ(combo.listIndex(), -1);
  combo.setText("unused");
  const Notices expected = {{key, Property::Text, QString()}, {key, Property::Text, "UNUSED"}};
  EXPECT_EQ(window.told, expected);
}

TEST_F(ComboTest, NewRowsChooseNone) {
  combo.select(2);
  combo.setRows(combo.list());
  EXPECT_EQ(combo.listIndex(), -1);
  EXPECT_EQ(combo.text(), u"");
  EXPECT_EQ(window.told.back().property, Property::List) << "views hear of it though the rows are the same";

  combo.select(2);
  combo.addRow("Four");
  EXPECT_EQ(combo.listIndex(), 2);
  combo.set(Property::List, QStringList{"One"});
  EXPECT_EQ(combo.listIndex(), -1) << "the chosen row is gone";
}

TEST(RangeFault, SaysWhatCanNeverBeHeldAndNotWhatAButtonRefuses) {
  TestWindow window;
  const auto fault = [](const Element& element, Property property, int value) {
    return element.rangeFault(property, value).toStdString();
  };
  EXPECT_EQ(fault(*window.Combo1, Property::ListIndex, 0), "the list has no row 0");
  EXPECT_EQ(fault(*window.Combo1, Property::ListIndex, -1), "");
  EXPECT_EQ(fault(*window.Check1, Property::Value, 3), "a check box takes 0, 1 or 2, not 3");
  EXPECT_EQ(fault(*window.Check1, Property::Value, 2), "");
  EXPECT_EQ(fault(*window.Label1, Property::Alignment, -1), "an alignment is 0, 1 or 2, not -1");
  EXPECT_EQ(fault(*window.Label1, Property::Alignment, 3), "an alignment is 0, 1 or 2, not 3");
  EXPECT_EQ(fault(window.Button1[0], Property::ButtonShape, 9), "");
}

TEST(OptionButton, OneOfAFamilyIsSelected) {
  TestWindow window;
  window.Option1[0].select();
  window.told.clear();
  window.Option1[2].select();
  EXPECT_FALSE(window.Option1[0].isSelected());
  EXPECT_TRUE(window.Option1[2].isSelected());
  // When the selection is told, no other option is selected any more.
  const Notices expected = {{"Form9.Option1(0)", Property::Value, 1},
                            {"Form9.Option1(2)", Property::Value, 0}};
  EXPECT_EQ(window.told, expected);
}
