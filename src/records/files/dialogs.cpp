// The dialog screens but play options.
//
// Label38 is shared: 0 and 1 belong to the pin screen, 2 and 3 to the confirmation, 4 and 5 to the free
// credit screen. A reload reads neither confirm.ini nor free_credit.ini. options.ini is the one file whose
// failure is told in a message box and doesn't end the load.
#include "records/recordfiles.h"

namespace veneerer {

Layout optionsFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "options.ini");
  file.placedButtons(form1.lvButtons_H30, 0, 8);
  file.placedButton(*form1.lvButtons_H31);
  file.placedButton(*form1.lvButtons_H32);
  file.placedButton(*form1.lvButtons_H33);
  file.colouredPlace(*form1.Picture9);
  file.labelRecord(*form1.Label29);
  file.placedButtons(form1.lvButtons_H30, 9, 11);
  file.optionalFromHere();
  file.placedButton(form1.lvButtons_H30[12]);
  file.reportFailure("Options screen load error");
  return file;
}

Layout optionsV2File(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "options_v2.ini");
  file.placeImages(form1.lvButtons_H30, 0, 12);
  file.placeQuad(*form1.lvButtons_H31);
  file.buttonImage(*form1.lvButtons_H31);
  file.placeQuad(*form1.lvButtons_H32);
  file.buttonImage(*form1.lvButtons_H32);
  file.placedButton(*form1.lvButtons_H33);
  file.colouredPlace(*form1.Picture9);
  file.labelRecord(*form1.Label29);
  return file;
}

Layout spinFile(State& state) {
  Layout file(state, "spin.ini");
  file.placedButton(state.form1.lvButtons_H4[5]);
  return file;
}

Layout pinScreenFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "pin_screen.ini");
  file.reference(*state.names.PinScreenName, {&form1.Picture1[16], &*state.form5.Image10});
  file.placeQuad(form1.Picture1[16]);
  file.labelRecord(form1.Label38[0]);
  file.placedButtons(form1.lvButtons_H43, 0, 9);
  file.optionalFromHere();
  file.placedButtons(form1.lvButtons_H43, 10, 10);
  file.labelRecord(form1.Label38[1]);
  return file;
}

Layout pinScreenV2File(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "pin_screen_v2.ini");
  file.reference(*state.names.PinScreenName);
  file.placeQuad(form1.Picture1[16]);
  file.labels(form1.Label38, 0, 1);
  file.placeImages(form1.lvButtons_H43, 0, 10);
  return file;
}

Layout requestFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "request.ini");
  file.reference(*state.names.RequestName, {&form1.Picture1[23], &*state.form5.Image18});
  file.alignedLabels(form1.Label53, 0, 1);
  file.placedButtons(form1.lvButtons_H56, 0, 29);
  file.placeQuad(form1.Picture1[23]);
  file.optionalFromHere();
  file.placedButtons(form1.lvButtons_H56, 30, 39);
  return file;
}

Layout confirmFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "confirm.ini");
  file.reference(*state.names.ConfirmationName, {&form1.Picture1[28], &*state.form5.Image22});
  file.placeQuad(form1.Picture1[28]);
  file.labels(form1.Label38, 2, 3);
  return file;
}

Layout freeCreditFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "free_credit.ini");
  file.reference(*state.names.FreeCreditName, {&form1.Picture1[29]});
  file.placeQuad(form1.Picture1[29]);
  file.labels(form1.Label38, 4, 5);
  file.geometryButton(form1.lvButtons_H57[5], "Pick A Box - ");
  return file;
}

Layout freeCreditV2File(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "free_credit_v2.ini");
  file.reference(*state.names.FreeCreditName);
  file.placeQuad(form1.Picture1[29]);
  file.labels(form1.Label38, 4, 5);
  file.geometryImages(form1.lvButtons_H57, 5, 5);
  return file;
}

}  // namespace veneerer
