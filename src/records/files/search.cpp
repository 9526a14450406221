// The search keyboard and its results, the choice bar, the tabs, the online search screen, the text hint.
//
// The choice bar is read under one name and written under another; of the tabs one more is written than is
// read. Label39 stands in search.ini and in search_choice.ini, which is read later and wins.
#include "records/recordfiles.h"

namespace veneerer {

Layout searchFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "search.ini");
  file.placedButtons(form1.lvButtons_H6, 0, 27, "search Buttons ");
  file.placedButtons(form1.lvButtons_H7, 0, 3);
  file.placedButton(*form1.lvButtons_H9);
  const std::size_t from = file.size();
  file.colouredPlace(*form1.Label32);
  file.applyAboveMinusOneOnly(from, {Property::Top, Property::Left});
  file.labels(form1.Label19, 0, 3);
  file.placedButtons(form1.lvButtons_H36, 0, 9, "search Buttons ");
  file.optionalFromHere();
  file.places(form1.Picture27, 0, 3);
  file.places(form1.Picture31, 0, 6);
  file.labels(form1.Label19, 4, 11);
  file.places(form1.Picture27, 4, 11);
  file.labelRecord(*form1.Label39);
  file.block();
  file.alignment(*form1.Label39);
  file.each(form1.Label19, 0, 11, [&](Label& label) { file.alignment(label); });
  return file;
}

Layout searchResultsFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "search_res.ini");
  file.reference(*state.names.SearchResultsName, {&form1.Picture1[11], &*state.form5.Image7});
  file.labels(form1.Label14, 0, 6);
  file.labels(form1.Label15, 0, 6);
  file.labels(form1.Label16, 0, 6);
  file.labels(form1.Label17, 0, 6);
  file.labelRecord(*form1.Label18);
  file.placedButtons(form1.lvButtons_H26, 0, 4, "search Results Buttons ");
  file.placedButtons(form1.lvButtons_H28, 0, 1, "search Results Buttons ");
  file.placedButton(*form1.lvButtons_H27, "search Results Buttons ");
  file.colouredPlaces(form1.Picture7, 0, 6);
  file.optionalFromHere();
  for (int i = 2; i <= 4; ++i) {
    file.placedButton(form1.lvButtons_H28[i], "search Results Buttons ");
  }
  file.labels(form1.Label16, 7, 13);
  return file;
}

// lvButtons_H28 and lvButtons_H26 stand here the other way round than in the main file.
Layout searchResultsV2File(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "search_res_v2.ini");
  file.reference(*state.names.SearchResultsName);
  file.labels(form1.Label14, 0, 6);
  file.labels(form1.Label15, 0, 6);
  file.labels(form1.Label16, 0, 13);
  file.labels(form1.Label17, 0, 6);
  file.labelRecord(*form1.Label18);
  file.placeImages(form1.lvButtons_H28, 0, 4);
  file.placeImages(form1.lvButtons_H26, 0, 1);
  file.placedButton(*form1.lvButtons_H27, "search Results Buttons ");
  file.colouredPlaces(form1.Picture7, 0, 6);
  return file;
}

Layout searchChoiceFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "search_choice.ini");
  file.reference(*state.names.SearchChoiceName, {&form1.Picture1[14], &state.form5.Image1[12]});
  file.placeQuad(form1.Picture1[14]);
  file.placedButtons(form1.lvButtons_H25, 0, 2, "search Buttons ");
  file.labelRecord(*form1.Label39);
  file.optionalFromHere();
  file.placedButton(*form1.lvButtons_H14, "search Buttons ");
  file.places(form1.Picture2, 11, 11);
  file.atEnd([](Loading& loading) {
    for (Element* box :
         std::initializer_list<Element*>{&loading.state.form1.Picture1[14], &loading.state.form5.Image1[12]})
      loading.show(QStringLiteral("\\images\\search choice.gif"), *box);
  });
  return file;
}

Layout searchTabFile(State& state) {
  Layout file(state, "search_tab.ini");
  file.placedButtons(state.form1.lvButtons_H42, 0, 2, "Seachtab ");
  const std::size_t fourth = file.size();
  file.placedButtons(state.form1.lvButtons_H42, 3, 3, "Seachtab ");
  file.writtenOnly(fourth, "four tabs are written and three are read: the last one keeps what it has");
  return file;
}

Layout noSearchFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "nosearch.ini");
  file.reference(*state.names.NoSearchName, {&form1.Picture1[22], &*state.form5.Image17});
  file.alignedLabels(form1.Label51, 0, 1);
  file.placedButtons(form1.lvButtons_H53, 0, 2);
  file.placeQuad(form1.Picture1[22]);
  file.optionalFromHere();
  file.placeQuad(*form1.Picture29);
  file.then([](Loading& loading) {
    loading.show(QStringLiteral("\\images\\online_search.bmp"), *loading.state.form1.Picture29);
  });
  file.alignedLabels(form1.Label51, 2, 6);
  file.placedButtons(form1.lvButtons_H53, 3, 4);
  file.placedButtons(form1.lvButtons_H53, 5, 8);
  return file;
}

Layout intelliFile(State& state) {
  Layout file(state, "intelli.ini");
  file.labelRecord(*state.form1.Label52);
  file.alignment(*state.form1.Label52);
  return file;
}

}  // namespace veneerer
