// "Texture Viewer": a thumbnail for each screen's picture, above its caption.
#pragma once

#include "elements/controls.h"
#include "elements/family.h"
#include "elements/label.h"
#include "elements/window.h"

namespace veneerer {

class Form5 : public Window {
public:
  explicit Form5(Switchboard& board) : Window(board, "Form5") {}

  Array<ImageBox> Image1{*this, "Image1", 13};
  Single<ImageBox> Image2{*this, "Image2"};
  Single<ImageBox> Image3{*this, "Image3"};
  Single<ImageBox> Image4{*this, "Image4"};
  Single<ImageBox> Image5{*this, "Image5"};
  Single<ImageBox> Image6{*this, "Image6"};
  Single<ImageBox> Image7{*this, "Image7"};
  Single<ImageBox> Image8{*this, "Image8"};
  Single<ImageBox> Image9{*this, "Image9"};
  Single<ImageBox> Image10{*this, "Image10"};
  Single<ImageBox> Image11{*this, "Image11"};
  Single<ImageBox> Image12{*this, "Image12"};
  Single<ImageBox> Image13{*this, "Image13"};
  Single<ImageBox> Image14{*this, "Image14"};
  Single<ImageBox> Image15{*this, "Image15"};
  Single<ImageBox> Image16{*this, "Image16"};
  Single<ImageBox> Image17{*this, "Image17"};
  Single<ImageBox> Image18{*this, "Image18"};
  Single<ImageBox> Image19{*this, "Image19"};
  Single<ImageBox> Image20{*this, "Image20"};
  Single<ImageBox> Image21{*this, "Image21"};
  Single<ImageBox> Image22{*this, "Image22"};
  Array<Label> Label3{*this, "Label3", 34};             ///< the captions, in a numbering of their own
  Single<ComboBox> Combo1{*this, "Combo1"};             ///< the frame that Image16 addresses
  Single<AnimatedFrame> ucAniGIF1{*this, "ucAniGIF1"};  ///< preview of that frame
  Single<CommandButton> Command1{*this, "Command1"};    ///< "Grab Player And Menu Image"
  Single<CommandButton> Command2{*this, "Command2"};    ///< "Copy To All"
};

}  // namespace veneerer
