// The album's track list.
//
// The screen grew over the years, and each step stands behind the one before: a family such as Label1 has its
// first members up front and the others far behind, where any step may be missing.
#include "records/recordfiles.h"

namespace veneerer {

namespace {

constexpr int kOtherAlbums = 10;

// Any row but none and the last one, which shows all ten, ends with no thumbnail of another album shown.
void hideOtherAlbums(Loading& loading) {
  const int row = loading.state.form4.Combo12->listIndex();
  if (row <= -1 || row >= 9) return;
  for (int i = 0; i < kOtherAlbums; ++i) loading.state.form1.Picture14[i].setVisible(false);
}

}  // namespace

Layout trackListFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "tracklist.ini");
  file.placedButtons(form1.lvButtons_H8, 0, 1);
  file.placedButtons(form1.lvButtons_H10, 0, 1);
  file.placedButtons(form1.lvButtons_H12, 0, 4);
  file.placedButton(*form1.lvButtons_H11);
  file.placeQuad(*form1.Picture8);
  file.labels(form1.Label2, 0, 2);
  file.places(form1.Picture14, 0, 3);
  file.labels(form1.Label1, 0, 12);
  file.labels(form1.Label3, 0, 12);
  file.placedButtons(form1.lvButtons_H34, 0, 1);
  file.optionalFromHere();
  file.labels(form1.Label1, 13, 19);
  file.places(form1.Picture2, 10, 10);
  file.labels(form1.Label60, 0, 19);
  file.labels(form1.Label2, 3, 3);
  file.labels(form1.Label3, 13, 19);
  file.each(form1.Picture14, 4, 9, [&](PictureBox& album) {
    file.placeQuad(album);
    const int i = album.index();
    file.then([i](Loading& loading) { loading.state.form1.Picture14[i].setVisible(true); });
  });
  file.listIndex(*state.form4.Combo12);
  file.placedButton(form1.lvButtons_H12[7]);
  file.checkValue(*state.form4.Check10);
  file.alignedLabels(form1.Label64, 0, 19);
  file.labels(form1.Label64, 20, 20);
  file.alignment(form1.Label64[20]);
  file.places(form1.aicAlphaImage1, 0, 19);
  file.places(form1.Picture2, 14, 14);
  file.labels(form1.Label2, 4, 8);
  file.places(form1.Picture2, 15, 15);
  file.reference(*state.names.FeedPanelName, {&form1.Picture2[15]});
  file.labels(form1.Label2, 9, 10);
  file.placedButton(form1.lvButtons_H8[2]);
  file.atEnd([](Loading& loading) {
    loading.show(QStringLiteral("\\images\\tracklist.gif"), loading.state.form1.Picture2[10]);
  });
  file.atEnd(hideOtherAlbums);
  return file;
}

}  // namespace veneerer
