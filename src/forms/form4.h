// "File Controls/Settings": the skin-wide choices. Every control is both an editor and the home of its value.
#pragma once

#include "elements/controls.h"
#include "elements/family.h"
#include "elements/window.h"

namespace veneerer {

class Form4 : public Window {
public:
  explicit Form4(Switchboard& board) : Window(board, "Form4") {}

  Single<ComboBox> Combo1{*this, "Combo1"};           ///< "Number of tracks shown:"
  Single<ComboBox> Combo2{*this, "Combo2"};           ///< "Jump To Letter:"
  Single<ComboBox> Combo3{*this, "Combo3"};           ///< "Loaded Skin:"; its text is the Skin's name
  Single<ComboBox> Combo4{*this, "Combo4"};           ///< "N.o Covers"
  Single<ComboBox> Combo5{*this, "Combo5"};           ///< "Genre Style:"
  Single<ComboBox> Combo6{*this, "Combo6"};           ///< "Navigation Style:"
  Single<ComboBox> Combo7{*this, "Combo7"};           ///< "Number of genres shown:"
  Single<ComboBox> Combo8{*this, "Combo8"};           ///< "Default Screen:"; kept for the run only
  Single<ComboBox> Combo9{*this, "Combo9"};           ///< "Default HOME Screen:"
  Single<ComboBox> Combo10{*this, "Combo10"};         ///< "Player Style:"
  Single<ComboBox> Combo11{*this, "Combo11"};         ///< "Genre Nav:"
  Single<ComboBox> Combo12{*this, "Combo12"};         ///< "Other Albums:"
  Single<CheckBox> Check1{*this, "Check1"};           ///< "Text only list of albums"
  Single<CheckBox> Check2{*this, "Check2"};           ///< "Keep QUEUE Shown"
  Single<CheckBox> Check3{*this, "Check3"};           ///< "Transparent Artist/Album Labels"
  Single<CheckBox> Check4{*this, "Check4"};           ///< "Enable Cover Reflections"
  Single<CheckBox> Check5{*this, "Check5"};           ///< "Use Album Frame Image"
  Single<CheckBox> Check6{*this, "Check6"};           ///< "Show Album Date and Genre"
  Single<CheckBox> Check7{*this, "Check7"};           ///< "Use Featured Album"
  Single<CheckBox> Check8{*this, "Check8"};           ///< "Keep Now Playing Screen Shown"
  Single<CheckBox> Check9{*this, "Check9"};           ///< "Keep Collections Shown"
  Single<CheckBox> Check10{*this, "Check10"};         ///< "Show Album Names on Quickjump"
  Single<CheckBox> Check11{*this, "Check11"};         ///< "Coverflow Navigation Style"
  Single<CheckBox> Check12{*this, "Check12"};         ///< "Keep Genre/Filter Screen Shown"
  Array<TextBox> Text1{*this, "Text1", 2};            ///< the Skin's width and height, pixels
  Single<TextBox> Text2{*this, "Text2"};              ///< the cover file's name
  Single<FileList> File1{*this, "File1"};             ///< the cover files
  Single<CommandButton> Command1{*this, "Command1"};  ///< "Save Cover File"
  Single<CommandButton> Command4{*this, "Command4"};  ///< "Save Skin"
};

}  // namespace veneerer
