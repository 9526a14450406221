// Player and navigation.
//
// Each file opens with the row of the list that selects the style of what it stores. Setting that row runs
// the panel's rule for it at once, ahead of every value that follows. nav.ini and tab.ini both hold the looks
// of the tabs, and tab.ini is read later.
#include "records/recordfiles.h"

namespace veneerer {

Layout playerFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "player.ini");
  file.listIndex(*state.form4.Combo10);
  file.geometryButtons(form1.lvButtons_H2, 0, 4, "Version 2 Player Button ");
  file.geometryQuad(*form1.Picture6);
  file.optionalFromHere();
  file.geometryButton(form1.lvButtons_H57[3], "Pop Up Player - ").keepsPictureWhenEmpty = true;
  file.geometryButton(form1.lvButtons_H2[5], "Pop Up Player BUTTON ").keepsPictureWhenEmpty = true;
  return file;
}

Layout playerV2File(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "player_v2.ini");
  file.listIndex(*state.form4.Combo10);
  file.geometryImages(form1.lvButtons_H2, 0, 5);
  file.geometryQuad(*form1.Picture6);
  file.geometryButton(form1.lvButtons_H57[3], "Pop Up Player - ");
  return file;
}

namespace {

// A slider: its track, then its thumb inside.
void slider(Layout& file, Form1& form1, int i) {
  file.block();
  file.literal("Slider Config");
  file.colouredPlace(form1.Picture13[i]);
  file.buttonRecord(form1.lvButtons_H5[i]);
  file.geometryQuad(form1.lvButtons_H5[i]);
  file.buttonImage(form1.lvButtons_H5[i]);
}

}  // namespace

Layout navFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "nav.ini");
  file.listIndex(*state.form4.Combo2);
  file.geometryButtons(form1.lvButtons_H3, 0, 2, "Nav Button ");
  file.reference(*state.names.NavName);
  file.literal("Current Position Label");
  file.labelRecord(*form1.Label5);
  file.geometryButtons(form1.lvButtons_H4, 0, 4, "Tab Button ");
  slider(file, form1, 0);
  slider(file, form1, 1);
  file.optionalFromHere();
  file.geometryButton(form1.lvButtons_H4[7], "Tab Button ");
  file.placeQuad(form1.Picture31[7]);
  return file;
}

Layout nav2File(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "nav2.ini");
  file.listIndex(*state.form4.Combo6);
  file.geometryButtons(form1.lvButtons_H57, 0, 2, "Nav Button ");
  file.reference(*state.names.Nav2Name);
  file.literal("Current Position Label");
  file.labelRecord(*form1.Label55);
  file.optionalFromHere();
  file.geometryButton(form1.lvButtons_H57[4], "Free Credits - ");
  return file;
}

// Top, Left, Width, Height: neither of the shared orders.
Layout progressFile(State& state) {
  Layout file(state, "progress.ini");
  for (Property p : {Property::Top, Property::Left, Property::Width, Property::Height})
    file.field(ValueKind::Single, *state.form1.Picture18, p);
  file.resumeOnError();
  return file;
}

}  // namespace veneerer
