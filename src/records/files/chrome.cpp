// The buttons that stand round every screen: the menu bar and its pop-up, the "more" button, the tabs, the
// two general buttons.
//
// The number of the VersionTag decides which lines there are in menu.ini and menupopup.ini and nowhere else.
// tab.ini has the looks of the tabs alone: nav.ini, which is read before it, has the looks as well and the
// places. The general buttons are samples on Form6 and stand on no screen.
#include "records/recordfiles.h"

namespace veneerer {

namespace {

void menuButtons(Layout& file, Array<Button>& buttons) {
  const std::size_t first = file.size();
  // An older file of 9 buttons loads; each further one is looked for by itself.
  file.geometryButtons(buttons, 0, 8, "Menu Button ");
  file.optionalFromHere();
  file.geometryButtons(buttons, 9, 13, "Menu Button ");
  file.needVersion(2, first, {Property::Top, Property::Left});
}

}  // namespace

Layout menuFile(State& state) {
  Layout file(state, "menu.ini");
  file.versionTag(2);
  const std::size_t head = file.size();
  file.field(ValueKind::Single, state.form1.Picture2[0], Property::Height);
  file.field(ValueKind::Single, state.form1.Picture2[0], Property::Width);
  file.needVersion(2, head, {Property::Height, Property::Width});
  menuButtons(file, state.form1.lvButtons_H1);
  return file;
}

Layout menuV2File(State& state) {
  Layout file(state, "menu_v2.ini");
  file.field(ValueKind::Single, state.form1.Picture2[0], Property::Height);
  file.field(ValueKind::Single, state.form1.Picture2[0], Property::Width);
  file.geometryImages(state.form1.lvButtons_H1, 0, 13);
  return file;
}

Layout menuPopupFile(State& state) {
  Layout file(state, "menupopup.ini");
  file.versionTag(2);
  const std::size_t head = file.size();
  file.geometryQuad(*state.form1.Picture23);
  file.needVersion(2, head, {Property::Height, Property::Width, Property::Top, Property::Left});
  menuButtons(file, state.form1.lvButtons_H54);
  return file;
}

Layout moreButtonFile(State& state) {
  Layout file(state, "morebutton.ini");
  file.placedButton(state.form1.lvButtons_H4[6]);
  return file;
}

// The tabs carry no placement here: nav.ini holds it. The label line says "Menu Button" all the same.
Layout tabFile(State& state) {
  Layout file(state, "tab.ini");
  file.each(state.form1.lvButtons_H4, 0, 4, [&](Button& tab) {
    file.labelLine("Menu Button ", tab);
    file.plainButtonRecord(tab);
  });
  file.resumeOnError();
  return file;
}

Layout backFile(State& state) {
  return {state, "back.ini"};
}

Layout generalButtonsFile(State& state) {
  Layout file(state, "genbut.ini");
  file.each(state.form6.lvButtons_H5, 0, 1, [&](Button& sample) {
    file.labelLine("General Buttons ", sample);
    file.plainButtonRecord(sample);
  });
  return file;
}

}  // namespace veneerer
