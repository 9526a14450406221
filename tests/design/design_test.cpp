#include "design/design.h"

#include <gtest/gtest.h>

#include "support/designchecks.h"

namespace veneerer {
namespace {

using test::failing;

// Which members of a family stand in which container.
struct Placement {
  const char* family;
  int first;
  int last;
  const char* container;
};

constexpr int kAll = 1000;

constexpr Placement kPlacements[] = {
    {"Picture1", 0, 29, "Form1"},
    {"Picture12", 0, 0, "Form1"},
    {"Picture23", 0, 0, "Form1"},
    {"Picture2", 0, 7, "Form1"},
    {"Picture2", 12, 13, "Form1"},
    {"Picture18", 0, 0, "Form1"},
    {"Picture21", 0, 0, "Form1"},
    {"Picture22", 0, 0, "Form1"},
    {"Image1", 0, 0, "Form1"},
    {"lvButtons_H57", 0, 4, "Form1"},
    {"Label27", 0, 1, "Form1"},
    {"Label27", 5, 5, "Form1"},
    {"Label41", 0, 0, "Form1"},
    {"Label55", 0, 0, "Form1"},
    {"Label4", 0, 5, "Form1"},
    {"lvButtons_H1", 0, kAll, "Form1.Picture2(0)"},
    {"lvButtons_H2", 0, kAll, "Form1.Picture2(1)"},
    {"Picture6", 0, 0, "Form1.Picture2(1)"},
    {"lvButtons_H24", 0, kAll, "Form1.Picture1(1)"},
    {"Picture5", 0, kAll, "Form1.Picture1(1)"},
    {"Label50", 0, kAll, "Form1.Picture1(1)"},
    {"Label49", 0, kAll, "Form1.Picture1(1)"},
    {"Label48", 0, kAll, "Form1.Picture1(1)"},
    {"Label47", 0, kAll, "Form1.Picture1(1)"},
    {"Label12", 0, kAll, "Form1.Picture1(1)"},
    {"Label11", 0, kAll, "Form1.Picture1(1)"},
    {"lvButtons_H59", 0, kAll, "Form1.Picture1(2)"},
    {"lvButtons_H29", 0, kAll, "Form1.Picture1(2)"},
    {"lvButtons_H19", 0, kAll, "Form1.Picture1(2)"},
    {"lvButtons_H13", 0, kAll, "Form1.Picture1(2)"},
    {"Picture11", 0, kAll, "Form1.Picture1(2)"},
    {"Picture2", 8, 8, "Form1.Picture1(2)"},
    {"Label37", 0, kAll, "Form1.Picture1(2)"},
    {"Label36", 0, kAll, "Form1.Picture1(2)"},
    {"Label35", 0, kAll, "Form1.Picture1(2)"},
    {"Label8", 0, kAll, "Form1.Picture1(2)"},
    {"Picture27", 0, kAll, "Form1.Picture1(3)"},
    {"lvButtons_H20", 0, kAll, "Form1.Picture1(3)"},
    {"lvButtons_H6", 0, kAll, "Form1.Picture1(3)"},
    {"lvButtons_H7", 0, kAll, "Form1.Picture1(3)"},
    {"lvButtons_H9", 0, kAll, "Form1.Picture1(3)"},
    {"lvButtons_H36", 0, kAll, "Form1.Picture1(3)"},
    {"Label39", 0, kAll, "Form1.Picture1(3)"},
    {"Label19", 0, kAll, "Form1.Picture1(3)"},
    {"Label52", 0, kAll, "Form1.Picture1(3)"},
    {"Label32", 0, kAll, "Form1.Picture1(3)"},
    {"lvButtons_H37", 0, kAll, "Form1.Picture1(4)"},
    {"Picture10", 0, kAll, "Form1.Picture1(4)"},
    {"lvButtons_H18", 0, kAll, "Form1.Picture1(4)"},
    {"Label61", 0, kAll, "Form1.Picture1(4)"},
    {"Label26", 0, kAll, "Form1.Picture1(4)"},
    {"Label25", 0, kAll, "Form1.Picture1(4)"},
    {"Label24", 0, kAll, "Form1.Picture1(4)"},
    {"Label23", 0, kAll, "Form1.Picture1(4)"},
    {"Label22", 0, kAll, "Form1.Picture1(4)"},
    {"Label21", 0, kAll, "Form1.Picture1(4)"},
    {"Label13", 0, kAll, "Form1.Picture1(4)"},
    {"lvButtons_H31", 0, kAll, "Form1.Picture1(5)"},
    {"Picture9", 0, kAll, "Form1.Picture1(5)"},
    {"lvButtons_H30", 0, kAll, "Form1.Picture1(5)"},
    {"lvButtons_H32", 0, kAll, "Form1.Picture1(5)"},
    {"lvButtons_H33", 0, kAll, "Form1.Picture1(5)"},
    {"Label29", 0, kAll, "Form1.Picture1(5)"},
    {"Picture15", 0, kAll, "Form1.Picture1(6)"},
    {"lvButtons_H40", 0, kAll, "Form1.Picture1(6)"},
    {"lvButtons_H17", 0, kAll, "Form1.Picture1(6)"},
    {"lvButtons_H16", 0, kAll, "Form1.Picture1(6)"},
    {"Label42", 0, kAll, "Form1.Picture1(6)"},
    {"Label31", 0, kAll, "Form1.Picture1(6)"},
    {"Label30", 0, kAll, "Form1.Picture1(6)"},
    {"Label28", 0, kAll, "Form1.Picture1(6)"},
    {"Picture19", 0, kAll, "Form1.Picture1(7)"},
    {"lvButtons_H50", 0, kAll, "Form1.Picture1(7)"},
    {"lvButtons_H49", 0, kAll, "Form1.Picture1(7)"},
    {"Label44", 0, kAll, "Form1.Picture1(7)"},
    {"Picture17", 0, kAll, "Form1.Picture1(8)"},
    {"Picture3", 0, 1, "Form1.Picture1(8)"},
    {"Picture3", 2, 2, "Form1.Picture17"},
    {"Picture3", 3, 3, "Form1.Picture1(8)"},
    {"Label7", 0, kAll, "Form1.Picture17"},
    {"lvButtons_H21", 0, kAll, "Form1.Picture1(8)"},
    {"aicAlphaImage1", 20, 20, "Form1.Picture1(8)"},
    {"Label6", 0, kAll, "Form1.Picture1(8)"},
    {"Picture31", 7, 7, "Form1.Picture1(9)"},
    {"Picture24", 0, kAll, "Form1.Picture1(9)"},
    {"Label54", 0, kAll, "Form1.Picture24"},
    {"lvButtons_H4", 0, kAll, "Form1.Picture1(9)"},
    {"lvButtons_H38", 0, kAll, "Form1.Picture1(9)"},
    {"Picture13", 0, kAll, "Form1.Picture1(9)"},
    {"lvButtons_H5", 0, 0, "Form1.Picture13(0)"},
    {"lvButtons_H5", 1, 1, "Form1.Picture13(1)"},
    {"lvButtons_H55", 0, 0, "Form1.Picture13(0)"},
    {"lvButtons_H55", 1, 1, "Form1.Picture13(1)"},
    {"lvButtons_H3", 0, kAll, "Form1.Picture1(9)"},
    {"Label27", 2, 2, "Form1.Picture1(9)"},
    {"Label63", 0, kAll, "Form1.Picture1(9)"},
    {"Label62", 0, kAll, "Form1.Picture1(9)"},
    {"Label10", 0, kAll, "Form1.Picture1(9)"},
    {"Label9", 0, kAll, "Form1.Picture1(9)"},
    {"ucAniGIF1", 0, kAll, "Form1.Picture1(9)"},
    {"Image2", 0, kAll, "Form1.Picture1(9)"},
    {"Label5", 0, kAll, "Form1.Picture1(9)"},
    {"Picture2", 10, 10, "Form1.Picture1(10)"},
    {"Picture2", 14, 15, "Form1.Picture1(10)"},
    {"Picture14", 0, kAll, "Form1.Picture1(10)"},
    {"lvButtons_H34", 0, kAll, "Form1.Picture1(10)"},
    {"Picture8", 0, kAll, "Form1.Picture1(10)"},
    {"lvButtons_H12", 0, kAll, "Form1.Picture1(10)"},
    {"lvButtons_H8", 0, 1, "Form1.Picture1(10)"},
    {"lvButtons_H8", 2, 2, "Form1.Picture2(15)"},
    {"lvButtons_H10", 0, kAll, "Form1.Picture1(10)"},
    {"lvButtons_H11", 0, kAll, "Form1.Picture1(10)"},
    {"Label2", 0, 8, "Form1.Picture1(10)"},
    {"Label2", 9, 10, "Form1.Picture2(15)"},
    {"aicAlphaImage1", 0, 19, "Form1.Picture1(10)"},
    {"Label64", 0, kAll, "Form1.Picture1(10)"},
    {"Label60", 0, kAll, "Form1.Picture1(10)"},
    {"Label3", 0, kAll, "Form1.Picture1(10)"},
    {"Label1", 0, kAll, "Form1.Picture1(10)"},
    {"Picture31", 0, 6, "Form1.Picture1(11)"},
    {"lvButtons_H42", 0, kAll, "Form1.Picture1(11)"},
    {"Picture7", 0, kAll, "Form1.Picture1(11)"},
    {"lvButtons_H28", 0, kAll, "Form1.Picture1(11)"},
    {"lvButtons_H27", 0, kAll, "Form1.Picture1(11)"},
    {"lvButtons_H26", 0, kAll, "Form1.Picture1(11)"},
    {"Label16", 0, kAll, "Form1.Picture1(11)"},
    {"Label18", 0, kAll, "Form1.Picture1(11)"},
    {"Label17", 0, kAll, "Form1.Picture1(11)"},
    {"Label15", 0, kAll, "Form1.Picture1(11)"},
    {"Label14", 0, kAll, "Form1.Picture1(11)"},
    {"lvButtons_H23", 0, kAll, "Form1.Picture1(12)"},
    {"lvButtons_H22", 0, kAll, "Form1.Picture1(12)"},
    {"Picture26", 0, kAll, "Form1.Picture1(13)"},
    {"Picture20", 0, kAll, "Form1.Picture1(13)"},
    {"lvButtons_H46", 0, kAll, "Form1.Picture1(13)"},
    {"lvButtons_H35", 0, kAll, "Form1.Picture1(13)"},
    {"Picture2", 9, 9, "Form1.Picture1(13)"},
    {"Label59", 0, kAll, "Form1.Picture1(13)"},
    {"Label20", 0, kAll, "Form1.Picture1(13)"},
    {"Picture2", 11, 11, "Form1.Picture1(14)"},
    {"lvButtons_H14", 0, kAll, "Form1.Picture1(14)"},
    {"lvButtons_H25", 0, kAll, "Form1.Picture1(14)"},
    {"Picture32", 0, kAll, "Form1.Picture1(15)"},
    {"lvButtons_H62", 0, kAll, "Form1.Picture32"},
    {"Picture33", 0, kAll, "Form1.Picture32"},
    {"Label33", 8, 8, "Form1.Picture32"},
    {"Picture28", 0, kAll, "Form1.Picture1(15)"},
    {"Label33", 4, 7, "Form1.Picture28"},
    {"lvButtons_H41", 0, kAll, "Form1.Picture1(15)"},
    {"Picture4", 0, kAll, "Form1.Picture1(15)"},
    {"Label34", 0, kAll, "Form1.Picture1(15)"},
    {"Label33", 0, 3, "Form1.Picture1(15)"},
    {"lvButtons_H43", 0, kAll, "Form1.Picture1(16)"},
    {"Label38", 0, 1, "Form1.Picture1(16)"},
    {"lvButtons_H45", 0, kAll, "Form1.Picture1(17)"},
    {"lvButtons_H44", 0, kAll, "Form1.Picture1(17)"},
    {"Label40", 0, kAll, "Form1.Picture1(17)"},
    {"lvButtons_H15", 0, kAll, "Form1.Picture1(18)"},
    {"Picture16", 0, kAll, "Form1.Picture1(18)"},
    {"Label43", 0, kAll, "Form1.Picture1(18)"},
    {"lvButtons_H48", 0, kAll, "Form1.Picture1(19)"},
    {"lvButtons_H47", 0, kAll, "Form1.Picture1(19)"},
    {"lvButtons_H52", 0, kAll, "Form1.Picture1(20)"},
    {"Label45", 0, kAll, "Form1.Picture1(20)"},
    {"lvButtons_H51", 0, kAll, "Form1.Picture1(21)"},
    {"Label46", 0, kAll, "Form1.Picture1(21)"},
    {"Picture29", 0, kAll, "Form1.Picture1(22)"},
    {"lvButtons_H53", 3, 4, "Form1.Picture29"},
    {"Label51", 2, 6, "Form1.Picture29"},
    {"lvButtons_H53", 0, 2, "Form1.Picture1(22)"},
    {"lvButtons_H53", 5, 8, "Form1.Picture1(22)"},
    {"Label51", 0, 1, "Form1.Picture1(22)"},
    {"lvButtons_H56", 0, kAll, "Form1.Picture1(23)"},
    {"Label53", 0, kAll, "Form1.Picture1(23)"},
    {"lvButtons_H58", 0, kAll, "Form1.Picture1(24)"},
    {"Label56", 0, kAll, "Form1.Picture1(24)"},
    {"Picture25", 0, kAll, "Form1.Picture1(25)"},
    {"lvButtons_H60", 0, 9, "Form1.Picture1(25)"},
    {"lvButtons_H60", 10, 53, "Form1.Picture25(3)"},
    {"lvButtons_H60", 54, 54, "Form1.Picture1(25)"},
    {"Label58", 0, 16, "Form1.Picture1(25)"},
    {"Label58", 17, 18, "Form1.Picture25(3)"},
    {"Label27", 4, 4, "Form1.Picture1(25)"},
    {"Label57", 0, kAll, "Form1.Picture1(25)"},
    {"Label27", 3, 3, "Form1.Picture1(26)"},
    {"lvButtons_H61", 0, kAll, "Form1.Picture1(27)"},
    {"Picture30", 0, kAll, "Form1.Picture1(27)"},
    {"Label38", 2, 3, "Form1.Picture1(28)"},
    {"lvButtons_H57", 5, 5, "Form1.Picture1(29)"},
    {"Label38", 4, 5, "Form1.Picture1(29)"},
    {"lvButtons_H39", 0, kAll, "Form1.Picture12(0)"},
    {"lvButtons_H54", 0, kAll, "Form1.Picture23"},
};

QString containerTold(const Element& element) {
  const int index = std::max(0, element.index());
  for (const Placement& placement : kPlacements)
    if (element.family()->name() == QLatin1String(placement.family) && index >= placement.first &&
        index <= placement.last)
      return QString::fromLatin1(placement.container);
  return {};
}

class BuiltInDesign : public testing::Test {
protected:
  BuiltInDesign() { applyBuiltInDesign(state); }

  State state;
  Form1& form = state.form1;
};

TEST_F(BuiltInDesign, PutsEveryElementIntoItsContainer) {
  EXPECT_EQ(
      failing(form,
              [](const Element& e) { return e.container() && e.container()->key() == containerTold(e); }),
      "");
}

TEST_F(BuiltInDesign, KeepsTheGivenPanels) {
  for (int i : {14, 15, 17, 18, 19, 20, 21, 22, 23, 24, 25, 27, 29})
    EXPECT_EQ(test::rectOf(form.Picture1[i]), QRectF(2400, 1200, 9735, 7815)) << i;
  EXPECT_EQ(test::rectOf(form.Picture1[28]), QRectF(2400, 1200, 9975, 7815));
  EXPECT_EQ(test::rectOf(form.Picture1[16]), QRectF(9000, 9120, 3015, 4575));
}

TEST_F(BuiltInDesign, KeepsEverythingElseInside) {
  const auto isGivenPanel = [](const Element& e) {
    return e.family()->name() == QLatin1String("Picture1") && e.index() >= 14 && e.index() != 26;
  };
  EXPECT_EQ(failing(form, [&](const Element& e) { return isGivenPanel(e) || test::keepsInside(e); }), "");
}

TEST_F(BuiltInDesign, IsReadable) {
  EXPECT_EQ(failing(form, test::isReadable), "");
  EXPECT_EQ(failing(form, test::showsWholeText), "");
}

TEST_F(BuiltInDesign, LaysNoTextOrButtonOverAnother) {
  // A genre's number of albums stands on the ground of its name.
  EXPECT_EQ(test::overlaps(form, {QStringLiteral("Label20+Label59")}), "");
}

TEST_F(BuiltInDesign, ShowsTheMainScreenAlone) {
  for (int i = 0; i < 30; ++i) EXPECT_EQ(form.Picture1[i].isVisible(), i == 0) << i;
  EXPECT_FALSE(form.Picture12[0].isVisible());
  EXPECT_FALSE(form.Picture23->isVisible());
}

TEST_F(BuiltInDesign, CrossesTwoTextureCaptions) {
  EXPECT_EQ(state.form5.Label3[9].caption(), QStringLiteral("Track Listing"));
  EXPECT_EQ(state.form5.Label3[10].caption(), QStringLiteral("NULL"));
}

}  // namespace
}  // namespace veneerer
