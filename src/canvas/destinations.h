// Where the buttons of the jukebox's menus lead. The designer itself goes nowhere by them: a click on the
// canvas takes a button in hand. They are followed where a Skin is only looked at.
#pragma once

#include <vector>

#include "forms/state.h"

namespace veneerer {

/// The entry of the screen that a button of the main menu or the pop-up menu leads to, by its place in the
/// menu; the pop-up's "Close" leads back to the Main Screen. -1 for every other element.
int destinationOf(const State& state, const Element& element);

/// A way from one screen to another.
struct Exit {
  const Button* button;
  int entry;  ///< of the screen that it leads to
};

/// The ways out of the screen of that entry, 0 to 31, in the order of the menus: the buttons that are visible
/// while it is shown. Others may stand in front of them.
std::vector<Exit> exitsOf(State& state, int entry);

}  // namespace veneerer
