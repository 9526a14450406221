// The play options screen with its keyboard, lvButtons_H62. A value of -1 or below in a label's place means
// that the label keeps its own. The reference between the keyboard's buttons is shown by no element: it is
// kept and written back.
#include "records/recordfiles.h"

namespace veneerer {

namespace {

void guardedLabels(Layout& file, Array<Label>& labels, int first, int last) {
  const std::size_t from = file.size();
  file.labels(labels, first, last);
  file.applyAboveMinusOneOnly(from, {Property::Top, Property::Left, Property::Height, Property::Width});
}

}  // namespace

Layout playOptionsFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "play_options.ini");
  file.placeQuad(*form1.Picture4);
  guardedLabels(file, form1.Label33, 0, 3);
  file.placedButtons(form1.lvButtons_H41, 0, 4);
  guardedLabels(file, form1.Label34, 0, 2);
  file.reference(*state.names.PlayOptionsName, {&form1.Picture1[15], &*state.form5.Image9});
  file.placeQuad(form1.Picture1[15]);
  file.optionalFromHere();
  file.placedButton(form1.lvButtons_H41[5]);
  file.placedButton(form1.lvButtons_H41[6]);
  file.placedButton(form1.lvButtons_H41[7]);
  guardedLabels(file, form1.Label33, 4, 7);
  file.placeQuad(*form1.Picture28);
  file.then([](Loading& loading) {
    loading.show(QStringLiteral("\\images\\alternate_track.bmp"), *loading.state.form1.Picture28);
  });
  file.block();
  file.placeQuad(*form1.Picture32);
  file.block();
  file.placeQuad(*form1.Picture33);
  file.placedButtons(form1.lvButtons_H62, 0, 26);
  file.reference(*state.names.PlayOptionsKeyboardName);
  guardedLabels(file, form1.Label33, 8, 8);
  file.placedButton(form1.lvButtons_H62[27]);
  return file;
}

}  // namespace veneerer
