#include "design/startstate.h"

namespace veneerer::design {

namespace {

constexpr int kShownCovers = 10;

template <class T>
void showRange(Array<T>& family, int first, int last, bool shown) {
  for (int i = first; i <= last; ++i) family[i].setVisible(shown);
}

void showCovers(State& state) {
  state.globals.LastCoverIndex->setValue(kShownCovers - 1);
  state.form4.Check5->setValue(1);
  Form1& f = state.form1;
  for (int i = 0; i <= kFeaturedCover; ++i) {
    const bool shown = i < kShownCovers;
    f.Image2[i].setVisible(shown);
    f.ucAniGIF1[i].setVisible(shown);
    f.Label9[i].setVisible(shown);
    f.Label10[i].setVisible(shown);
    f.Label62[i].setVisible(false);
    f.Label63[i].setVisible(false);
  }
  f.Image2[29].setVisible(false);
  f.ucAniGIF1[29].setVisible(false);
}

// "Jump To Button" and "On Album Screen".
void showNavigation(Form1& f) {
  showRange(f.Picture13, 0, 1, false);
  showRange(f.lvButtons_H38, 0, 26, false);
  showRange(f.lvButtons_H57, 0, 2, false);
  f.Label55->setVisible(false);
}

// "Normal Player".
void showPlayer(Form1& f) {
  showRange(f.lvButtons_H2, 3, 5, false);
  f.lvButtons_H57[3].setVisible(false);
}

// "Genre Screen".
void showGenres(Form1& f) {
  showRange(f.Picture20, 0, 27, false);
  showRange(f.Picture26, 0, 111, false);
  showRange(f.lvButtons_H35, 4, 30, false);
}

}  // namespace

void showStartState(State& state) {
  Form1& f = state.form1;
  for (int i = 1; i < 30; ++i) f.Picture1[i].setVisible(false);
  f.Picture1[0].setVisible(true);
  f.Picture12[0].setVisible(false);
  f.Picture23->setVisible(false);
  showCovers(state);
  showNavigation(f);
  showPlayer(f);
  showGenres(f);
}

}  // namespace veneerer::design
