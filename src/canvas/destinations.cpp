#include "canvas/destinations.h"

#include <array>

#include "canvas/screens.h"

namespace veneerer {

namespace {

// Entries of the Edit Section list.
constexpr int kMain = 0;
constexpr int kHistory = 1;
constexpr int kTop20 = 2;
constexpr int kSearch = 3;
constexpr int kQueue = 4;
constexpr int kOptions = 5;
constexpr int kDecades = 6;
constexpr int kPlaylist = 7;
constexpr int kNowPlaying = 8;
constexpr int kAlbums = 9;
constexpr int kGenres = 13;
constexpr int kRequest = 23;
constexpr int kLogin = 24;  // one's own pages come behind the login
constexpr int kCollections = 27;
constexpr int kPopUp = 31;

using Menu = std::array<int, 14>;

// The two menus differ in their order, and in their last button.
constexpr Menu kMainMenu = {kHistory, kSearch, kQueue,      kTop20, kOptions,     kDecades, kPlaylist,
                            kGenres,  kAlbums, kNowPlaying, kLogin, kCollections, kRequest, kPopUp};
constexpr Menu kPopUpMenu = {kHistory, kTop20,  kSearch,     kQueue, kOptions,     kDecades, kPlaylist,
                             kGenres,  kAlbums, kNowPlaying, kLogin, kCollections, kRequest, kMain};

}  // namespace

int destinationOf(const State& state, const Element& element) {
  const auto among = [&](const Family& family, const Menu& menu) {
    return element.family() == &family ? menu.at(static_cast<std::size_t>(element.index())) : -1;
  };
  const int entry = among(state.form1.lvButtons_H1, kMainMenu);
  return entry >= 0 ? entry : among(state.form1.lvButtons_H54, kPopUpMenu);
}

std::vector<Exit> exitsOf(State& state, int entry) {
  const Stage stage = stageOf(state, entry);
  std::vector<Exit> exits;
  for (const Array<Button>* menu : {&state.form1.lvButtons_H1, &state.form1.lvButtons_H54})
    for (const Element* button : menu->members())
      if (isShownOn(stage, *button)) exits.push_back({&cast<Button>(*button), destinationOf(state, *button)});
  return exits;
}

}  // namespace veneerer
