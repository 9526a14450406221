// Where the menus lead, held against the captions of the built-in design's own words.
#include "canvas/destinations.h"

#include <gtest/gtest.h>

#include <set>

#include "canvas/screens.h"

namespace veneerer {
namespace {

std::set<const Button*> buttonsOf(const std::vector<Exit>& exits) {
  std::set<const Button*> buttons;
  for (const Exit& exit : exits) buttons.insert(exit.button);
  return buttons;
}

TEST(Destinations, BelongToTheButtonsOfTheTwoMenusAlone) {
  State state;
  int leading = 0;
  for (const Family* family : state.form1.families())
    for (const Element* element : family->members())
      if (const int entry = destinationOf(state, *element); entry >= 0) {
        ++leading;
        EXPECT_LT(entry, static_cast<int>(kScreenEntries.size()));
        EXPECT_TRUE(family == &state.form1.lvButtons_H1 || family == &state.form1.lvButtons_H54);
      }
  EXPECT_EQ(leading, 28);
}

TEST(Exits, AreTheButtonsThatAreVisibleOnTheirScreen) {
  State state;
  Form1& form = state.form1;
  for (int entry = 0; entry < static_cast<int>(kScreenEntries.size()); ++entry) {
    screenOf(state, entry).setContainer(form);
    screenOf(state, entry).setVisible(false);
  }
  form.Picture2[0].setContainer(form);
  for (Element* button : form.lvButtons_H1.members()) button->setContainer(form.Picture2[0]);
  for (Element* button : form.lvButtons_H54.members()) button->setContainer(*form.Picture23);
  form.lvButtons_H1[3].setVisible(false);

  const auto onQueue = buttonsOf(exitsOf(state, 4));
  EXPECT_EQ(onQueue.size(), 13U);
  EXPECT_FALSE(onQueue.contains(&form.lvButtons_H1[3]));
  EXPECT_FALSE(onQueue.contains(&form.lvButtons_H54[0]));
  EXPECT_TRUE(buttonsOf(exitsOf(state, 31)).contains(&form.lvButtons_H54[0]));
  form.Picture2[0].setVisible(false);
  EXPECT_TRUE(exitsOf(state, 4).empty());
  EXPECT_FALSE(form.Picture1[4].isVisible()) << "asking shows nothing";
}

}  // namespace
}  // namespace veneerer
