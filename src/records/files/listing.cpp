// The listing screens but the track list.
//
// A row of a listing is a picture; each column of texts is a family of labels of its own. Columns that came
// later stand in the optional tail, far from those beside them on the screen. now_playing.ini places its one
// button Height first among elements that are placed Top first.
#include "records/recordfiles.h"

namespace veneerer {

Layout nowPlayingFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "now_playing.ini");
  std::size_t from = file.size();
  file.colouredPlaces(form1.Picture3, 0, 3);
  file.applyAboveMinusOneOnly(from, {Property::Top, Property::Left});
  from = file.size();
  file.labels(form1.Label7, 0, 2);
  file.applyAboveMinusOneOnly(from, {Property::Top, Property::Left, Property::Height, Property::Width});
  from = file.size();
  file.labels(form1.Label6, 0, 1);
  file.applyAboveMinusOneOnly(from, {Property::Top, Property::Left});
  file.geometryButton(*form1.lvButtons_H21);
  file.optionalFromHere();
  from = file.size();
  file.placeQuad(*form1.Picture17);
  file.applyAboveMinusOneOnly(from, {Property::Top, Property::Left});
  file.block();
  file.reference(*state.names.NowPlayingPanelName, {&*form1.Picture17});
  file.block();
  file.checkValue(*state.form4.Check8);
  file.block();
  file.placeQuad(form1.aicAlphaImage1[20]);
  file.atEnd([](Loading& loading) {
    loading.show(QStringLiteral("\\images\\now playing.gif"), loading.state.form1.Picture3[3]);
  });
  return file;
}

Layout top20File(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "top20.ini");
  file.placedButtons(form1.lvButtons_H13, 0, 1);
  file.colouredPlaces(form1.Picture11, 0, 9);
  file.labels(form1.Label8, 0, 9);
  file.placedButton(*form1.lvButtons_H19);
  file.placedButtons(form1.lvButtons_H29, 0, 2);
  file.optionalFromHere();
  file.labels(form1.Label35, 0, 9);
  file.labels(form1.Label36, 0, 9);
  file.labels(form1.Label37, 0, 9);
  file.places(form1.Picture2, 8, 8);
  file.placedButtons(form1.lvButtons_H59, 0, 1);
  file.atEnd([](Loading& loading) {
    loading.show(QStringLiteral("\\images\\top10.gif"), loading.state.form1.Picture2[8]);
  });
  return file;
}

Layout historyFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "history.ini");
  file.placedButtons(form1.lvButtons_H24, 0, 4, "History Buttons ");
  file.colouredPlaces(form1.Picture5, 0, 8);
  file.labels(form1.Label11, 0, 8);
  file.labelRecord(*form1.Label12);
  file.optionalFromHere();
  file.labels(form1.Label47, 0, 8);
  file.labels(form1.Label48, 0, 8);
  file.labels(form1.Label49, 0, 8);
  file.labels(form1.Label50, 0, 8);
  file.placedButtons(form1.lvButtons_H24, 5, 7, "Additional History Buttons ");
  return file;
}

Layout queueFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "queue.ini");
  file.placedButtons(form1.lvButtons_H18, 0, 1);
  file.placedButtons(form1.lvButtons_H37, 0, 7);
  file.labelRecord(*form1.Label13);
  file.places(form1.Picture10, 0, 4);
  file.labels(form1.Label21, 0, 3);
  file.labels(form1.Label22, 0, 1);
  file.labels(form1.Label23, 0, 4);
  file.labels(form1.Label24, 0, 4);
  file.labels(form1.Label25, 0, 4);
  file.labels(form1.Label26, 0, 4);
  file.optionalFromHere();
  file.labels(form1.Label61, 0, 4);
  file.checkValue(*state.form4.Check2);
  return file;
}

}  // namespace veneerer
