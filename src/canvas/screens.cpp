#include "canvas/screens.h"

#include <algorithm>
#include <utility>

#include "elements/require.h"

namespace veneerer {

namespace {

constexpr int kMemberScreens = 30;
constexpr int kGenreSelectionBar = 30;
constexpr int kPopUpMenu = 31;
constexpr int kGenreScreen = 13;
constexpr int kCollectionsScreen = 27;
constexpr int kEntries = static_cast<int>(kScreenEntries.size());

// The Skin's properties keep two screens shown behind the others.
bool staysShown(const State& state, int entry) {
  if (entry == kCollectionsScreen) return state.form4.Check9->isTicked();
  return entry == kGenreScreen && state.form4.Check12->isTicked();
}

// What showScreen() leaves visible.
bool isShownWith(const State& state, int shown, int entry) {
  return entry == shown || staysShown(state, entry);
}

void raise(Stage& stage, const Element& element) {
  const auto found = std::ranges::find(stage, &element);
  if (found != stage.end()) std::rotate(found, found + 1, stage.end());
}

}  // namespace

QString screenTitle(int entry) {
  return QStringView(kScreenEntries.at(static_cast<std::size_t>(entry))).toString();
}

const Element& screenOf(const State& state, int entry) {
  require(entry >= 0 && entry < kEntries, "there is no such screen");
  if (entry < kMemberScreens) return state.form1.Picture1[entry];
  if (entry == kGenreSelectionBar) return state.form1.Picture12[0];
  return *state.form1.Picture23;
}

Element& screenOf(State& state, int entry) {
  return const_cast<Element&>(screenOf(std::as_const(state), entry));
}

int entryOf(const State& state, const Element& element) {
  for (int entry = 0; entry < kEntries; ++entry)
    if (&element == &screenOf(state, entry)) return entry;
  return -1;
}

int shownEntry(const State& state) {
  const int chosen = state.form6.Combo6->listIndex();
  if (chosen >= 0) return chosen;
  for (int entry = 0; entry < static_cast<int>(kScreenEntries.size()); ++entry)
    if (screenOf(state, entry).isVisible()) return entry;
  return -1;
}

bool isScreen(const State& state, const Element& element) {
  const Form1& form1 = state.form1;
  return element.family() == &form1.Picture1 || &element == &form1.Picture12[0] ||
         &element == &*form1.Picture23;
}

bool isOnShownScreen(const State& state, const Element& element) {
  const Element* screen = &element;
  while (screen && !isScreen(state, *screen)) screen = screen->container();
  return !screen || screen->isVisible();
}

void showScreen(State& state, int entry) {
  if (entry < 0) return;
  Element& screen = screenOf(state, entry);
  for (int other = 0; other < kEntries; ++other)
    screenOf(state, other).setVisible(isShownWith(state, entry, other));
  if (entry < kMemberScreens) screen.bringToFront();
  // Whatever stays shown behind a screen, these two stand in front of it.
  for (int overlay : {kGenreSelectionBar, kPopUpMenu}) screenOf(state, overlay).bringToFront();
}

Stage stageOf(const State& state, int entry) {
  const Element& screen = screenOf(state, entry);
  Stage stage;
  for (Element* element : state.form1.children()) {
    const int other = entryOf(state, *element);
    if (other < 0 ? element->isVisible() : isShownWith(state, entry, other)) stage.push_back(element);
  }
  if (entry < kMemberScreens) raise(stage, screen);
  for (int overlay : {kGenreSelectionBar, kPopUpMenu}) raise(stage, screenOf(state, overlay));
  return stage;
}

bool isScreenShown(const State& state, int entry) {
  for (int other = 0; other < kEntries; ++other)
    if (screenOf(state, other).isVisible() != isShownWith(state, entry, other)) return false;
  return true;
}

}  // namespace veneerer
