// The decades screen and its selectors of year, month and decade.
//
// The VersionTag of decades2.ini is written and never tested. The years came in two lots: decades_year.ini
// has the later ten behind its optional tail, its twin all 67 in one run. Buttons are placed Height first
// here, all but that of the decade selector.
#include "elements/numbers.h"
#include "records/recordfiles.h"

namespace veneerer {

namespace {

// "Add queue Button ( 1)Next": the index carries its sign blank. A single button counts as index 0.
QString numberedPrefix(const char* words, const Button& button) {
  return QString::fromLatin1(words) + u'(' + signedNumber(std::max(0, button.index())) + u')';
}

void numberedButton(Layout& file, const char* words, Button& button) {
  file.labelLine(numberedPrefix(words, button), button);
  file.buttonRecord(button);
  file.geometryQuad(button);
  file.buttonImage(button);
}

}  // namespace

Layout decades2File(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "decades2.ini");
  file.versionTag(1);
  const auto addQueue = [&](Button& button) { numberedButton(file, "Add queue Button ", button); };
  file.each(form1.lvButtons_H16, 0, 1, addQueue);
  file.each(form1.lvButtons_H17, 0, 1, addQueue);
  file.labels(form1.Label30, 0, 9);
  file.labels(form1.Label28, 0, 1);
  file.places(form1.Picture15, 0, 9);
  file.labels(form1.Label31, 0, 9);
  numberedButton(file, "BACK Button ", *form1.lvButtons_H40);
  file.labelRecord(*form1.Label42);
  file.optionalFromHere();
  file.places(form1.Picture15, 10, 10);
  return file;
}

Layout decadesYearFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "decades_year.ini");
  file.reference(*state.names.DecadesYearName, {&form1.Picture1[17], &*state.form5.Image11});
  file.geometryButtons(form1.lvButtons_H44, 0, 56);
  file.labels(form1.Label40, 0, 5);
  file.optionalFromHere();
  file.placeQuad(form1.Picture1[17]);
  file.geometryButton(*form1.lvButtons_H45);
  file.geometryButtons(form1.lvButtons_H44, 57, 66);
  file.labels(form1.Label40, 6, 6);
  return file;
}

Layout decadesYearV2File(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "decades_year_v2.ini");
  file.reference(*state.names.DecadesYearName);
  file.geometryImages(form1.lvButtons_H44, 0, 66);
  file.labels(form1.Label40, 0, 5);
  file.placeQuad(form1.Picture1[17]);
  file.geometryButton(*form1.lvButtons_H45);
  file.labels(form1.Label40, 6, 6);
  return file;
}

Layout decadesMonthFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "decades_month.ini");
  file.reference(*state.names.DecadesMonthName, {&form1.Picture1[19], &*state.form5.Image13});
  file.geometryButtons(form1.lvButtons_H48, 0, 11);
  file.placeQuad(form1.Picture1[19]);
  file.geometryButton(*form1.lvButtons_H47);
  return file;
}

Layout decadesSelectorFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "decades_selector.ini");
  file.reference(*state.names.DecadesSelectorName, {&form1.Picture1[18], &*state.form5.Image12});
  file.placeQuad(form1.Picture1[18]);
  file.places(form1.Picture16, 0, 5);
  file.labels(form1.Label43, 0, 5);
  file.optionalFromHere();
  file.placedButton(*form1.lvButtons_H15, "Decade Choice Buttons ");
  return file;
}

}  // namespace veneerer
