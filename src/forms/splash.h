// The splash, which tells what is being loaded.
#pragma once

#include "elements/family.h"
#include "elements/label.h"
#include "elements/window.h"

namespace veneerer {

class Splash : public Window {
public:
  explicit Splash(Switchboard& board) : Window(board, "frmSplash") {}

  Single<Label> Label1{*this, "Label1"};  ///< "Powered By Merlane Jukebox"
  Single<Label> Label2{*this, "Label2"};  ///< the warning
  Single<Label> Label3{*this, "Label3"};  ///< progress
  Single<Label> lblProductName{*this, "lblProductName"};
  Single<Label> lblPlatform{*this, "lblPlatform"};
  Single<Label> lblVersion{*this, "lblVersion"};
};

}  // namespace veneerer
