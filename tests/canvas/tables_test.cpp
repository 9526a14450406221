// The canvas' tables, checked as wholes: against the windows and against each other.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "canvas/draglimits.h"
#include "canvas/screens.h"
#include "canvas/sections.h"

namespace veneerer {

TEST(SectionTable, HasOneRowPerFamilyInTheOrderOfNumbers) {
  State state;
  std::set<const Family*> families;
  int last = 0;
  for (const Section& section : sections()) {
    EXPECT_LT(last, section.number);
    last = section.number;
    const Family& family = section.family(state);
    EXPECT_TRUE(families.insert(&family).second) << section.number;
    EXPECT_EQ(sectionOf(state, family), section.number);
    EXPECT_EQ(familyOfSection(state, section.number), &family);
  }
}

TEST(SectionTable, NamesNothingUnderUnusedNumbers) {
  State state;
  for (int number : {-1, 0, 7, 15, 17, 27, 106, 109, 141, 148, 159, 164, 166, 169, 174, 178, 183, 188, 191})
    EXPECT_EQ(familyOfSection(state, number), nullptr) << number;
  for (const Family* family : std::initializer_list<Family*>{&state.form1.Picture9, &state.form1.Label29,
                                                             &state.form1.lvButtons_H20, &state.form6.Text1})
    EXPECT_EQ(sectionOf(state, *family), 0) << qPrintable(family->name());
}

TEST(SectionTable, ClearsTheIndexOnlyForSingleControls) {
  State state;
  std::set<int> clearing;
  for (const Section& section : sections()) {
    if (!section.clearsIndex) continue;
    EXPECT_FALSE(section.family(state).isArray()) << section.number;
    clearing.insert(section.number);
  }
  EXPECT_EQ(clearing, (std::set<int>{20, 45, 89, 96, 99, 118, 123, 139, 180, 182, 189, 190}));
}

TEST(DragTable, GivesEachFamilyAtMostOneRule) {
  State state;
  std::map<const Family*, int> rules;
  for (const DragRule& rule : kDragRules)
    for (FamilyRef family : rule.families) ++rules[&family(state)];
  QStringList without;
  for (const Family* family : state.form1.families()) {
    EXPECT_LE(rules[family], 1) << qPrintable(family->name());
    if (rules[family] == 0) without.append(family->name());
  }
  EXPECT_EQ(without, QStringList({"Picture9", "Picture21", "Picture22", "Image1", "lvButtons_H5",
                                  "lvButtons_H20", "lvButtons_H55"}));
}

TEST(DragTable, FindsTheOtherFamilyAtEveryIndex) {
  State state;
  for (const DragRule& rule : kDragRules)
    for (FamilyRef other : {rule.leftOf, rule.topOf})
      for (FamilyRef family : rule.families)
        for (const Element* element : family(state).members()) {
          if (!other) continue;
          EXPECT_NE(other(state).find(element->index()), nullptr) << qPrintable(element->key());
        }
}

TEST(Screens, ShowsOneEntryAndWhatTheSkinKeeps) {
  State state;
  for (int entry = static_cast<int>(kScreenEntries.size()) - 1; entry >= 0; --entry)
    screenOf(state, entry).setContainer(state.form1);
  state.form4.Check9->setValue(1);
  for (int entry = 0; entry < static_cast<int>(kScreenEntries.size()); ++entry) {
    showScreen(state, entry);
    for (int other = 0; other < static_cast<int>(kScreenEntries.size()); ++other)
      EXPECT_EQ(screenOf(state, other).isVisible(), other == entry || other == 27) << entry << ' ' << other;
    const auto& order = state.form1.children();
    const auto front =
        std::find_if(order.rbegin(), order.rend(), [](Element* screen) { return screen->isVisible(); });
    EXPECT_EQ(*front, &screenOf(state, entry));
  }
  state.form4.Check9->setValue(0);
  state.form4.Check12->setValue(1);
  EXPECT_FALSE(isScreenShown(state, 31));
  showScreen(state, 31);
  EXPECT_TRUE(isScreenShown(state, 31));
  EXPECT_FALSE(screenOf(state, 27).isVisible());
  EXPECT_TRUE(screenOf(state, 13).isVisible());
  showScreen(state, -1);
  EXPECT_TRUE(isScreenShown(state, 31));
}

}  // namespace veneerer
