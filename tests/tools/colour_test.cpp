// The colour tools.
#include "tools/colourtext.h"
#include "toolsfixture.h"

namespace veneerer {

using ColourTest = ToolsTest;

TEST(ColourText, ReadsTheThreeForms) {
  const struct {
    const char* text;
    std::int32_t number;
    std::int32_t typed;
  } cases[] = {
      {"", 0, 0},
      {"255", 255, 255},
      {" 12 apples", 12, 12},
      {"-2147483633", -2147483633, -2147483633},
      {"99999999999", 0, 0},
      {"&H1F", 31, 31},
      {"&hff00zz", 0xff00, 0xff00},
      {"&H8000000F", -2147483633, -2147483633},
      {"&H100000000", 0, 0},
      {"&H0000000001", 1, 1},
      {"#112233", 0, 0x113322},
      {"#11223", 0, 0},
      {"#1122334", 0, 0},
      {"#zz0000", 0, 0},
      {"red", 0, 0},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(colourNumber(QString::fromLatin1(c.text)), c.number) << c.text;
    EXPECT_EQ(typedColour(QString::fromLatin1(c.text)), c.typed) << c.text;
  }
}

TEST_F(ColourTest, AnOptionShowsItsColourAndChangesNothing) {
  current(2, 1);
  state.globals.CurrentColour = 99;
  form1.lvButtons_H2[1].setForeColor(1234);
  int changes = 0;
  const Attachment watching =
      state.board.watch([&](const Change& change) { changes += &change.element.window() == &form1; });
  form6.Option1[0].select();
  EXPECT_EQ(form6.Text2->text(), u"1234");
  EXPECT_EQ(form6.Picture2->backColor(), 1234);
  form6.Option1[1].select();
  EXPECT_EQ(form6.Text2->text(), u"501");
  form6.Text2->setText("501 ");
  changes = 0;
  state.globals.CurrentColour = 99;
  click(form6.Option1[1]);
  EXPECT_EQ(form6.Text2->text(), u"501");
  EXPECT_EQ(state.globals.CurrentColour, 99);
  EXPECT_EQ(changes, 0);
}

TEST_F(ColourTest, OptionsShowColoursForTheirSectionsOnly) {
  QStringList sections;
  for (int section = 0; section <= 191; ++section) {
    current(section, 1);
    form6.Picture2->setBackColor(-1);
    click(form6.Option1[1]);
    if (form6.Picture2->backColor() != -1) sections.append(QString::number(section));
  }
  // Number 7 is reserved and names no element.
  EXPECT_EQ(sections.join(u' ').toStdString(),
            "1 2 3 4 5 6 9 10 11 34 35 38 39 41 42 43 46 47 49 59 60 78 79 80 86 137");
}

}  // namespace veneerer
