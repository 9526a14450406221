// The playlist screen and its dialogs for loading and saving. The last block of playlist.ini is crossed: it
// is written from button 8 and read into button 7.
#include "records/recordfiles.h"

namespace veneerer {

namespace {

constexpr char kEighthReadAgain[] = "button 8 is written here and read into button 7 once more";

// The block of button 8, which the reader takes into button 7: 8 is never loaded, and 7 ends with its values.
void crossedButton(Layout& file, Button& into, Button& from, ImageSlot& keptFrom) {
  const std::size_t first = file.size();
  file.placedButton(into);
  file.writeFrom(first, from, keptFrom, kEighthReadAgain);
}

}  // namespace

Layout playlistFile(State& state) {
  Form1& form1 = state.form1;
  Array<Button>& buttons = form1.lvButtons_H49;
  Layout file(state, "playlist.ini");
  std::size_t from = file.size();
  file.labels(form1.Label44, 0, 9);
  file.applyAboveMinusOneOnly(from, {Property::Top, Property::Left, Property::Height, Property::Width});
  file.placedButtons(buttons, 0, 5);
  file.places(form1.Picture19, 0, 9);
  file.placedButton(*form1.lvButtons_H50);
  file.optionalFromHere();
  file.placedButton(buttons[6]);
  file.placedButton(buttons[7]);
  from = file.size();
  file.labels(form1.Label44, 10, 10);
  file.applyAboveMinusOneOnly(from, {Property::Top, Property::Left, Property::Height, Property::Width});
  crossedButton(file, buttons[7], buttons[8], *state.names.of(buttons[8]));
  return file;
}

Layout playlistSaveFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "playlist_save.ini");
  file.reference(*state.names.PlaylistSaveName, {&form1.Picture1[21], &*state.form5.Image14});
  file.labelRecord(*form1.Label46);
  file.placedButtons(form1.lvButtons_H51, 0, 39);
  file.placeQuad(form1.Picture1[21]);
  return file;
}

Layout playlistLoadFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "playlist_load.ini");
  file.reference(*state.names.PlaylistLoadName, {&form1.Picture1[20], &*state.form5.Image15});
  file.labels(form1.Label45, 0, 9);
  file.placedButtons(form1.lvButtons_H52, 0, 2);
  file.optionalFromHere();
  file.placeQuad(form1.Picture1[20]);
  return file;
}

}  // namespace veneerer
