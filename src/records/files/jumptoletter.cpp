// The two jump to letter keyboards. The second is another keyboard, no newer form of the first. The images of
// lvButtons_H23 stand in the table of lvButtons_H22, from entry 26 on.
#include "records/recordfiles.h"

namespace veneerer {

Layout jumpToLetterFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "jumptoletter.ini");
  file.reference(*state.names.JumpToLetterName, {&form1.Picture1[12], &*state.form5.Image5});
  file.placeQuad(form1.Picture1[12]);
  file.placedButtons(form1.lvButtons_H22, 0, 25, "Jump To Letter Buttons ");
  file.placedButtons(form1.lvButtons_H23, 0, 1, "Jump To Letter Buttons ");
  return file;
}

Layout jumpToLetter2File(State& state) {
  Layout file(state, "jumptoletter2.ini");
  file.placedButtons(state.form1.lvButtons_H38, 0, 26, "Jump To Letter Buttons ");
  return file;
}

Layout jumpToLetter2V2File(State& state) {
  Layout file(state, "jumptoletter2_v2.ini");
  file.placeImages(state.form1.lvButtons_H38, 0, 26);
  return file;
}

}  // namespace veneerer
