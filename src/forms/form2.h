// "Button Settings": which buttons of the jukebox are on offer in this Skin.
#pragma once

#include "elements/controls.h"
#include "elements/family.h"
#include "elements/window.h"

namespace veneerer {

class Form2 : public Window {
public:
  explicit Form2(Switchboard& board) : Window(board, "Form2") {}

  Array<CheckBox> Check1{*this, "Check1", 14};  ///< 0 to 4 "Misc Buttons", 5 to 13 "Play Button Options"
  Array<CheckBox> Check2{*this, "Check2", 16};  ///< "Menu Bar Items"
  Array<CheckBox> Check3{*this, "Check3", 6};   ///< "Tabs"
  Single<CommandButton> Command1{*this, "Command1"};  ///< "Save BUTTONS.INI"
};

}  // namespace veneerer
