// The member's screens, the collections, the agreement page and the frames of the album covers.
//
// frames.ini belongs to the covers, whose own command writes it as well. Label27 is shared with main.ini:
// the agreement page has 3 and 5, the member's home screen has 4.
#include "records/recordfiles.h"

namespace veneerer {

Layout myLoginFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "mylogin.ini");
  file.reference(*state.names.LoginName, {&form1.Picture1[24], &*state.form5.Image19});
  file.placedButtons(form1.lvButtons_H58, 0, 39, "V-Quill Login Buttons ");
  file.alignedLabels(form1.Label56, 0, 1);
  file.optionalFromHere();
  file.placeQuad(form1.Picture1[24]);
  return file;
}

Layout myVQuillFile(State& state) {
  Form1& form1 = state.form1;
  Array<Button>& buttons = form1.lvButtons_H60;
  Layout file(state, "myvquill.ini");
  file.reference(*state.names.MemberHomeName, {&form1.Picture1[25], &*state.form5.Image20});
  file.placedButtons(buttons, 0, 8, "My V-Quill Buttons ");
  file.alignedLabels(form1.Label58, 0, 14);
  file.places(form1.Picture25, 0, 1);
  file.placeQuad(form1.Picture1[25]);
  file.optionalFromHere();
  file.places(form1.Picture25, 2, 2);
  file.placedButton(buttons[9], "My V-Quill Buttons ");
  file.labelRecord(form1.Label27[4]);
  file.block();
  file.alignment(form1.Label27[4]);
  file.alignedLabels(form1.Label58, 15, 16);
  file.places(form1.Picture25, 3, 3);
  file.alignedLabels(form1.Label58, 17, 18);
  file.placedButtons(buttons, 10, 51);
  file.reference(*state.names.MemberKeyboardName);
  file.placedButton(buttons[52]);
  file.placedButton(buttons[53]);
  file.placeQuad(form1.Picture25[4]);
  file.placedButton(buttons[54]);
  return file;
}

Layout collectionsFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "collections.ini");
  file.reference(*state.names.CollectionsName, {&form1.Picture1[27], &*state.form5.Image21});
  file.placeQuad(form1.Picture1[27]);
  file.places(form1.Picture30, 0, 8);
  file.optionalFromHere();
  file.geometryButtons(form1.lvButtons_H61, 0, 2, "Button ");
  file.checkValue(*state.form4.Check9);
  return file;
}

Layout licenceFile(State& state) {
  Layout file(state, "licence.ini");
  file.labelRecord(state.form1.Label27[3]);
  file.optionalFromHere();
  file.labelRecord(state.form1.Label27[5]);
  return file;
}

// The first twelve frames are always there; an older file may end behind any later one.
Layout framesFile(State& state) {
  Layout file(state, "frames.ini");
  for (int i = 0; i < state.names.AlbumFrameName.bound(); ++i) {
    if (i >= 12) file.optionalFromHere();
    file.reference(state.names.AlbumFrameName[i], {&state.form1.ucAniGIF1[i], &*state.form5.ucAniGIF1});
  }
  return file;
}

}  // namespace veneerer
