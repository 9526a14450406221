// The Skin chooser, which is shown when the operator starts blank.
#pragma once

#include "elements/controls.h"
#include "elements/family.h"
#include "elements/window.h"

namespace veneerer {

class Form3 : public Window {
public:
  explicit Form3(Switchboard& board) : Window(board, "Form3") {}

  Single<FolderList> Dir1{*this, "Dir1"};             ///< the Skins by their paths
  Single<ListBox> List1{*this, "List1"};              ///< the Skins by their names
  Single<TextBox> Text1{*this, "Text1"};              ///< has no action
  Single<CommandButton> Command1{*this, "Command1"};  ///< "New Skin"; has no action
};

}  // namespace veneerer
