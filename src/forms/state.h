// The whole state of the designer: every window with its elements, the image names, the globals. This is the
// loaded Skin; the record files only hold it between runs.
#pragma once

#include "elements/notes.h"
#include "elements/switchboard.h"
#include "forms/form1.h"
#include "forms/form2.h"
#include "forms/form3.h"
#include "forms/form4.h"
#include "forms/form5.h"
#include "forms/form6.h"
#include "forms/globals.h"
#include "forms/imagenames.h"
#include "forms/splash.h"
#include "images/picture.h"

namespace veneerer {

struct State {
  State() = default;
  State(const State&) = delete;
  State& operator=(const State&) = delete;

  Switchboard board;
  Notes notes;
  PictureStore pictures;
  Form1 form1{board};
  Form2 form2{board};
  Form3 form3{board};
  Form4 form4{board};
  Form5 form5{board};
  Form6 form6{board};
  Splash frmSplash{board};
  ImageNames names{board, form1};
  Globals globals{board};

  std::vector<Window*> windows() { return {&form1, &form2, &form3, &form4, &form5, &form6, &frmSplash}; }

  /// The element of that key ("Form1.Label16(3)", "Form4.Combo10", "Form1"), null when there is none. A
  /// single control also answers to index 0.
  Element* find(const QString& key);
};

}  // namespace veneerer
