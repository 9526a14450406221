#include "canvas/destinations.h"

#include <array>

#include "canvas/screens.h"

namespace veneerer {

namespace {

// Entries of the Edit Section list.
enum : int {
  kMain = 0,
  kHistory = 1,
  kTop20 = 2,
  kSearch = 3,
  kQueue = 4,
  kOptions = 5,
  kDecades = 6,
  kPlaylist = 7,
  kNowPlaying = 8,
  kAlbums = 9,
  kGenres = 13,
  kRequest = 23,
  kLogin = 24,  // one's own pages come behind the login
  kCollections = 27,
  kPopUp = 31,
};

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
