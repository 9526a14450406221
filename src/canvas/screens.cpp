#include "canvas/screens.h"

#include "elements/require.h"

namespace veneerer {

namespace {

constexpr int kMemberScreens = 30;
constexpr int kGenreSelectionBar = 30;
constexpr int kPopUpMenu = 31;
constexpr int kGenreScreen = 13;
constexpr int kCollectionsScreen = 27;

}  // namespace

Element& screenOf(State& state, int entry) {
  require(entry >= 0 && entry < static_cast<int>(kScreenEntries.size()), "there is no such screen");
  if (entry < kMemberScreens) return state.form1.Picture1[entry];
  if (entry == kGenreSelectionBar) return state.form1.Picture12[0];
  return *state.form1.Picture23;
}

void hideAllScreens(State& state) {
  Form1& form1 = state.form1;
  for (Element* screen : form1.Picture1.members()) screen->setVisible(false);
  form1.Picture1[kCollectionsScreen].setVisible(state.form4.Check9->isTicked());
  form1.Picture1[kGenreScreen].setVisible(state.form4.Check12->isTicked());
  form1.Picture12[0].setVisible(false);
  form1.Picture23->setVisible(false);
}

void showScreen(State& state, int entry) {
  if (entry < 0) return;
  hideAllScreens(state);
  Element& screen = screenOf(state, entry);
  screen.setVisible(true);
  if (entry < kMemberScreens) screen.bringToFront();
  // Whatever stays shown behind a screen, these two stand in front of it.
  for (int overlay : {kGenreSelectionBar, kPopUpMenu}) screenOf(state, overlay).bringToFront();
}

}  // namespace veneerer
