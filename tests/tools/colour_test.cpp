// The colour tools.
#include "tools/colourtext.h"
#include "toolsfixture.h"

namespace veneerer {

using ColourTest = ToolsTest;

TEST(ColourText, ReadsTheThreeForms) {
  struct Case {
    const char* text;
    std::int32_t number;
    std::int32_t typed;
  };
  for (const Case& c : {Case{"", 0, 0},
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
                        {"red", 0, 0}}) {
    EXPECT_EQ(colourNumber(QString::fromLatin1(c.text)), c.number) << c.text;
    EXPECT_EQ(typedColour(QString::fromLatin1(c.text)), c.typed) << c.text;
  }
}

TEST_F(ColourTest, TypingColoursWhatTheOptionNames) {
  Button& button = form1.lvButtons_H2[1];
  current(2, 1);
  form6.Option1[2].select();
  type(*form6.Text2, "#112233");
  EXPECT_EQ(button.gradientColor(), 0x113322);
  EXPECT_EQ(button.backColor(), 501);
  EXPECT_EQ(state.globals.CurrentColour, 0x113322);
  // Outside its Sections it doesn't even take the colour in hand.
  current(9, 1);
  type(*form6.Text2, "5");
  EXPECT_EQ(state.globals.CurrentColour, 0x113322);
  // A label has no gradient.
  current(38, 2);
  type(*form6.Text2, "6");
  EXPECT_EQ(form1.Label4[2].backColor(), 502);
  current(5);
  form6.Option1[0].select();
  type(*form6.Text2, "7");
  EXPECT_EQ(form6.Label5->foreColor(), 7);
}

TEST_F(ColourTest, ACancelledDialogPaintsBlack) {
  current(22, 4);
  form6.Option1[1].select();
  world.dialogs.colours.enqueue(0x123456);
  state.board.click(*form6.Picture2);
  EXPECT_EQ(form1.Label1[4].backColor(), 0x123456);
  EXPECT_EQ(form6.Picture2->backColor(), 0x123456);
  EXPECT_EQ(form6.Text2->text(), QString::number(0x123456));
  world.dialogs.colours.enqueue(std::nullopt);
  state.board.click(*form6.Picture2);
  EXPECT_EQ(form1.Label1[4].backColor(), 0);
  world.dialogs.colours.enqueue(77);
  state.board.click(*form6.Picture1);
  EXPECT_EQ(form6.Picture1->backColor(), 77);
  EXPECT_EQ(state.globals.CurrentColour, 77);
  EXPECT_EQ(form1.Label1[4].backColor(), 0);
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
  form6.Text2->setText(QStringLiteral("501 "));
  changes = 0;
  state.globals.CurrentColour = 99;
  state.board.click(form6.Option1[1]);
  EXPECT_EQ(form6.Text2->text(), u"501");
  EXPECT_EQ(state.globals.CurrentColour, 99);
  EXPECT_EQ(changes, 0);
}

TEST_F(ColourTest, OptionsShowColoursForTheirSectionsOnly) {
  QStringList sections;
  for (int section = 0; section <= 191; ++section) {
    current(section, 1);
    form6.Picture2->setBackColor(-1);
    state.board.click(form6.Option1[1]);
    if (form6.Picture2->backColor() != -1) sections.append(QString::number(section));
  }
  // Number 7 is reserved and names no element.
  EXPECT_EQ(sections.join(u' ').toStdString(),
            "1 2 3 4 5 6 9 10 11 34 35 38 39 41 42 43 46 47 49 59 60 78 79 80 86 137");
}

TEST_F(ColourTest, CopiesColourAndGradientOverTheFamily) {
  form6.Option1[0].select();
  current(0);
  form6.Combo4->select(3);
  type(*form6.Text2, "&HFF");
  current(1, 0);
  state.board.click(form6.Command2[0]);
  EXPECT_EQ(form1.lvButtons_H1[9].foreColor(), 255);
  EXPECT_EQ(form1.lvButtons_H1[9].gradientMode(), 3);
  EXPECT_NE(form1.lvButtons_H1[10].foreColor(), 255);
  EXPECT_EQ(form1.lvButtons_H1[10].gradientMode(), 0);
  EXPECT_NE(form1.Label1[0].foreColor(), 255);
  current(12);
  state.board.click(form6.Command2[0]);
  EXPECT_EQ(form1.lvButtons_H9->foreColor(), 255);
}

TEST_F(ColourTest, TheGlobalCopyNeedsNoSectionAndReadsNoWebColour) {
  form6.Option1[1].select();
  type(*form6.Text2, "#112233");
  state.board.click(form6.Command2[1]);
  for (const Element* element :
       {static_cast<Element*>(&form1.Label63[28]), static_cast<Element*>(&form1.Picture5[8]),
        static_cast<Element*>(&*form1.lvButtons_H11), static_cast<Element*>(&form6.Label6[1])})
    EXPECT_EQ(element->as<Colour>(Property::BackColor), 0) << qPrintable(element->key());
  // Neither family of Sections 39 and 61 is on the list.
  EXPECT_NE(form1.Label5->backColor(), 0);
  EXPECT_NE(form1.lvButtons_H31->backColor(), 0);
}

}  // namespace veneerer
