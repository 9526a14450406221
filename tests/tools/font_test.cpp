// The font and label tools.
#include "toolsfixture.h"

namespace veneerer {

using FontTest = ToolsTest;

TEST_F(FontTest, ThePlainCopySparesTheLabelInHandAndTheGlobalOneDoesNot) {
  type(*form6.Text4, "20");
  current(22, 4);
  click(form6.Command1[0]);
  EXPECT_EQ(form1.Label1[19].fontSize(), 20);
  EXPECT_EQ(form1.Label1[4].fontSize(), 6);
  EXPECT_NE(form1.Label3[0].fontSize(), 20);
  current(0);
  click(form6.Command1[1]);
  EXPECT_EQ(form1.Label1[4].fontSize(), 20);
  EXPECT_EQ(form1.Label3[0].fontSize(), 20);
  EXPECT_NE(form1.Label42->fontSize(), 20);
}

TEST_F(FontTest, CopiesNothingWithoutASizeOrAName) {
  for (const char* text : {"0", "-4", "big"}) {
    type(*form6.Text4, text);
    click(form6.Command1[1]);
    EXPECT_EQ(form1.Label1[4].fontSize(), 6) << text;
  }
  const QString before = form1.Label1[4].fontName();
  click(form6.Command4[1]);
  EXPECT_EQ(form1.Label1[4].fontName(), before);
  form6.List1->select(0);
  click(form6.Command4[1]);
  EXPECT_EQ(form1.Label1[4].fontName(), u"Tahoma");
  // Section 138 copies sizes, but no font types.
  EXPECT_NE(form1.Label53[0].fontName(), u"Tahoma");
}

TEST_F(FontTest, CopiesAlignmentAndBackgroundsUpToTheirLastCover) {
  form6.Combo5->select(1);
  current(171, 5);
  click(*form6.Command11);
  EXPECT_EQ(valuesOf<int>(form1.Label63, Property::Alignment, {27, 28}), (QList<int>{1, 0}));
  EXPECT_EQ(form1.Label62[0].alignment(), 0);
  current(0);
  for (Element* label : form1.Label9.members()) static_cast<Label*>(label)->setOpaque(false);
  form6.Check1->setValue(1);
  EXPECT_TRUE(form1.Label9[20].isOpaque());
  EXPECT_FALSE(form1.Label9[21].isOpaque());
  form6.Check1->setValue(0);
  EXPECT_FALSE(form1.Label9[0].isOpaque());
  EXPECT_FALSE(form1.Label10[20].isOpaque());
}

}  // namespace veneerer
