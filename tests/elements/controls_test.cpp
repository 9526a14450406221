#include "elements/controls.h"

#include <gtest/gtest.h>

#include "support/testwindow.h"

using namespace veneerer;
using test::TestWindow;
using Notices = std::vector<TestWindow::Notice>;

namespace {

struct ComboTest : testing::Test {
  ComboTest() {
    combo.setRows({u"One"_qs, u"UNUSED"_qs, u"UNUSED"_qs});
    window.told.clear();
  }
  TestWindow window;
  ComboBox& combo = *window.Combo1;
  const QString key = QStringLiteral("Form9.Combo1");
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

TEST_F(ComboTest, NoRowMeansNoText) {
  combo.select(0);
  EXPECT_TRUE(combo.select(-1));
  EXPECT_EQ(combo.text(), u"");
  EXPECT_EQ(combo.listIndex(), -1);
}

TEST_F(ComboTest, RowsOutsideTheListAreRefused) {
  combo.select(0);
  window.told.clear();
  EXPECT_FALSE(combo.select(3));
  EXPECT_FALSE(combo.select(-2));
  EXPECT_EQ(combo.listIndex(), 0);
  EXPECT_EQ(window.told, Notices());
}

TEST_F(ComboTest, ATextIsNoSelection) {
  combo.setText(u"UNUSED"_qs);
  EXPECT_EQ(combo.listIndex(), 1) << "the first entry of that text";
  combo.setText(u"unused"_qs);
  EXPECT_EQ(combo.listIndex(), -1);
  combo.setText(u"unused"_qs);
  const Notices expected = {{key, Property::Text, QString()}, {key, Property::Text, u"UNUSED"_qs}};
  EXPECT_EQ(window.told, expected);
}

TEST_F(ComboTest, NewRowsChooseNone) {
  combo.select(2);
  combo.setRows(combo.list());
  EXPECT_EQ(combo.listIndex(), -1);
  EXPECT_EQ(combo.text(), u"");
  EXPECT_EQ(window.told.back().property, Property::List) << "views hear of it though the rows are the same";

  combo.select(2);
  combo.addRow(u"Four"_qs);
  EXPECT_EQ(combo.listIndex(), 2);
  combo.set(Property::List, QStringList{u"One"_qs});
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
  EXPECT_EQ(fault(*window.Label1, Property::BackColor, -1), "");
  EXPECT_EQ(fault(window.Button1[0], Property::ButtonShape, 9), "");
  EXPECT_FALSE(window.Button1[0].set(Property::ButtonShape, 9));
  EXPECT_FALSE(window.Check1->set(Property::Value, 3));
}

TEST(OptionButton, OneOfAFamilyIsSelected) {
  TestWindow window;
  window.Option1[0].select();
  window.told.clear();
  window.Option1[2].select();
  EXPECT_FALSE(window.Option1[0].isSelected());
  EXPECT_TRUE(window.Option1[2].isSelected());
  // When the selection is told, no other option is selected any more.
  const Notices expected = {{u"Form9.Option1(0)"_qs, Property::Value, 1},
                            {u"Form9.Option1(2)"_qs, Property::Value, 0}};
  EXPECT_EQ(window.told, expected);
}
