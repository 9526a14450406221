// "Tools": the fields and commands that act on the current Section.
#pragma once

#include "elements/button.h"
#include "elements/controls.h"
#include "elements/family.h"
#include "elements/label.h"
#include "elements/window.h"

namespace veneerer {

class Form6 : public Window {
public:
  explicit Form6(Switchboard& board) : Window(board, "Form6") {}

  Single<TextBox> Text1{*this, "Text1"};                 ///< "Button Caption:"
  Single<TextBox> Text2{*this, "Text2"};                 ///< the colour as text
  Array<TextBox> Text3{*this, "Text3", 2};               ///< "Height:", "Width:", twips
  Single<TextBox> Text4{*this, "Text4"};                 ///< "Font Size:", points
  Array<TextBox> Text5{*this, "Text5", 2};               ///< "X Shift:", "Y Shift:", twips
  Array<TextBox> Text6{*this, "Text6", 2};               ///< "X Space:", "Y Space:", twips
  Single<TextBox> Text7{*this, "Text7"};                 ///< the rescale's new width, pixels
  Single<TextBox> Text8{*this, "Text8"};                 ///< the rescale's new height, pixels
  Array<TextBox> Text9{*this, "Text9", 2};               ///< "Top:", "Left:", twips
  Array<TextBox> Text10{*this, "Text10", 2};             ///< "X Grid:", "Y Grid:", twips
  Single<ComboBox> Combo1{*this, "Combo1"};              ///< button shape
  Single<ComboBox> Combo2{*this, "Combo2"};              ///< button style
  Single<ComboBox> Combo4{*this, "Combo4"};              ///< "Gradient Style:"
  Single<ComboBox> Combo5{*this, "Combo5"};              ///< "Alignment:"
  Single<ComboBox> Combo6{*this, "Combo6"};              ///< Edit Section: the screen that is shown
  Single<ListBox> List1{*this, "List1"};                 ///< the fonts of the screen
  Array<OptionButton> Option1{*this, "Option1", 3};      ///< "Fore Colour", "Back Colour", "Gradient Colour"
  Single<PictureBox> Picture1{*this, "Picture1"};        ///< "Key Highlight Colour:"
  Single<PictureBox> Picture2{*this, "Picture2"};        ///< "Selected Colour:"
  Single<Label> Label5{*this, "Label5"};                 ///< "Font Colour Sample"
  Array<Label> Label6{*this, "Label6", 2};               ///< "Artist Name", "Album Name"
  Single<Label> Label7{*this, "Label7"};                 ///< preview of the font
  Array<Button> lvButtons_H5{*this, "lvButtons_H5", 2};  ///< "General Button", "Play Now"
  Single<CheckBox> Check1{*this, "Check1"};              ///< "Show Label Background (Album Cover)"
  Single<CheckBox> Check2{*this, "Check2"};              ///< "Resize Backdrop Images"
  Array<CommandButton> Command1{*this, "Command1", 2};   ///< font size to all labels, the second globally
  Array<CommandButton> Command2{*this, "Command2", 2};   ///< "Copy Colours", "Global Copy Colours"
  Single<CommandButton> Command3{*this, "Command3"};     ///< "Copy Styles To All Buttons"
  Array<CommandButton> Command4{*this, "Command4", 2};   ///< font type to all labels, the second globally
  Single<CommandButton> Command5{*this, "Command5"};     ///< "Make Buttons Same Size"
  Array<CommandButton> Command6{*this, "Command6", 2};   ///< "Shift X", "Shift Y"
  Single<CommandButton> Command7{*this, "Command7"};     ///< "Clear Button Images"
  Array<CommandButton> Command8{*this, "Command8", 2};   ///< "Align X", "Align Y"
  Array<CommandButton> Command9{*this, "Command9", 2};   ///< "Space X", "Space Y"
  Single<CommandButton> Command10{*this, "Command10"};   ///< "Rescale SKIN"
  Single<CommandButton> Command11{*this, "Command11"};   ///< "Copy Alignment to All Labels"
  Single<CommandButton> Command12{*this, "Command12"};   ///< "Make Buttons Same Place"
  Single<CommandButton> Command13{*this, "Command13"};   ///< "Snap To Grid"
  Single<CommandButton> Command14{*this, "Command14"};   ///< "Change Font"
};

}  // namespace veneerer
