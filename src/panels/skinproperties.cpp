#include "panels/skinproperties.h"

#include <algorithm>
#include <cmath>

#include "elements/numbers.h"
#include "panels/texts.h"

namespace veneerer {

namespace {

/// Shows or hides the members from first to last; indices without a member are passed over.
void show(const Family& family, int first, int last, bool visible) {
  last = std::min(last, family.bound() - 1);
  for (int i = std::max(0, first); i <= last; ++i)
    if (Element* member = family.find(i)) member->setVisible(visible);
}

/// Of the members 0 to last, those below count are shown and the others hidden.
void showCount(const Family& family, int last, int count) {
  count = std::clamp(count, 0, last + 1);
  show(family, 0, count - 1, true);
  show(family, count, last, false);
}

QStringList numbers(int last) {
  QStringList rows;
  for (int n = 1; n <= last; ++n) rows.append(signedNumber(n));
  return rows;
}

}  // namespace

SkinProperties::SkinProperties(State& state, const Screen& screen) : state_(state), screen_(screen) {
  Form4& form4 = state.form4;
  bind(*form4.Combo1, Property::ListIndex, &SkinProperties::tracksShown);
  bind(*form4.Combo7, Property::ListIndex, &SkinProperties::genresShown);
  bind(*form4.Combo5, Property::ListIndex, &SkinProperties::genreStyle);
  bind(*form4.Combo11, Property::ListIndex, &SkinProperties::genreNavigation);
  bind(*form4.Combo2, Property::ListIndex, &SkinProperties::jumpToLetter);
  bind(*form4.Combo6, Property::ListIndex, &SkinProperties::navigationStyle);
  bind(*form4.Combo10, Property::ListIndex, &SkinProperties::playerStyle);
  bind(*form4.Combo12, Property::ListIndex, &SkinProperties::otherAlbums);
  bind(*form4.Check10, Property::Value, &SkinProperties::quickjumpNames);
  bind(*form4.Check6, Property::Value, &SkinProperties::dateAndGenre);
  bind(*form4.Check7, Property::Value, &SkinProperties::featuredAlbum);
  bind(*form4.Check1, Property::Value, &SkinProperties::textOnlyList);
  bind(*form4.Combo4, Property::ListIndex, &SkinProperties::coverCountChosen);
  bind(*form4.Combo4, Property::Text, &SkinProperties::coverTextChanged);
  bind(form4.Text1[0], Property::Text, &SkinProperties::skinWidth);
  bind(form4.Text1[1], Property::Text, &SkinProperties::skinHeight);
}

void SkinProperties::bind(const Element& element, Property property, Handler handler) {
  attachments_.push_back(
      state_.board.onChange(element, property, [this, handler](Element&) { (this->*handler)(); }));
}

void SkinProperties::tracksShown() {
  const int count = leadingWhole(state_.form4.Combo1->text());
  showCount(state_.form1.Label1, kTracks - 1, count);
  showCount(state_.form1.Label3, kTracks - 1, count);
  showCount(state_.form1.aicAlphaImage1, kTracks - 1, count);
}

// Takes no account of the genre style: icons and thumbnails that the style hides come up here, and so it
// stays.
void SkinProperties::genresShown() {
  const int count = std::clamp(leadingWhole(state_.form4.Combo7->text()), 0, kGenres);
  showCount(state_.form1.Label20, kGenres - 1, count);
  showCount(state_.form1.Label59, kGenres - 1, count);
  showCount(state_.form1.Picture20, kGenres - 1, count);
  showCount(state_.form1.Picture26, kThumbnailsPerGenre * kGenres - 1, kThumbnailsPerGenre * count);
}

void SkinProperties::genreStyle() {
  const int style = state_.form4.Combo5->listIndex();
  if (style < 0) return;
  const int count = std::clamp(leadingWhole(state_.form4.Combo7->text()), 0, kGenres);
  if (style == 2) showCount(state_.form1.Label59, kGenres - 1, count);
  showCount(state_.form1.Picture20, kGenres - 1, style > 0 ? count : 0);
  showCount(state_.form1.Picture26, kThumbnailsPerGenre * kGenres - 1,
            style == 2 ? kThumbnailsPerGenre * count : 0);
}

// Reads the row of the genre style, not its own: its own row matters to genre.ini alone.
void SkinProperties::genreNavigation() {
  const bool isPlain = state_.form4.Combo5->listIndex() == 0;
  show(state_.form1.lvButtons_H35, 3, 3, isPlain);
  show(state_.form1.lvButtons_H35, 4, 30, !isPlain);
}

// Exactly one of five things is shown.
void SkinProperties::jumpToLetter() {
  const int row = state_.form4.Combo2->listIndex();
  if (row < 0) return;
  show(state_.form1.lvButtons_H3, 1, 1, row == 0);
  show(state_.form1.Picture13, 0, 0, row == 1);
  show(state_.form1.Picture13, 1, 1, row == 2);
  show(state_.form1.lvButtons_H38, 0, 26, row == 3);
  show(state_.form1.lvButtons_H57, 1, 1, row == 4);
}

void SkinProperties::navigationStyle() {
  const int row = state_.form4.Combo6->listIndex();
  if (row < 0) return;
  for (int i : {0, 2}) {
    show(state_.form1.lvButtons_H3, i, i, row == 0);
    show(state_.form1.lvButtons_H57, i, i, row == 1);
  }
  state_.form1.Label5->setVisible(row == 0);
  state_.form1.Label55->setVisible(row == 1);
}

void SkinProperties::playerStyle() {
  const int row = state_.form4.Combo10->listIndex();
  if (row < 0) return;
  const bool hasButtons = row == 1 || row == 3;
  const bool popsUp = row >= 2;
  show(state_.form1.lvButtons_H2, 3, 4, hasButtons);
  state_.form1.Picture6->setVisible(!hasButtons);
  show(state_.form1.lvButtons_H57, 3, 3, popsUp);
  // The normal styles never hide this one: going back from a pop-up style leaves it up until a reload.
  if (popsUp) show(state_.form1.lvButtons_H2, 5, 5, true);
}

// Row 9, ten albums, does nothing at all, though the row is stored.
void SkinProperties::otherAlbums() {
  const int row = state_.form4.Combo12->listIndex();
  if (row > -1 && row < kOtherAlbums - 1) showCount(state_.form1.Picture14, kOtherAlbums - 1, row + 1);
}

void SkinProperties::quickjumpNames() {
  if (state_.form4.Check10->isTicked())
    show(state_.form1.Label64, 0, state_.form4.Combo12->listIndex(), true);
  else
    show(state_.form1.Label64, 0, kOtherAlbums - 1, false);
}

// Ticked, it reaches one further than the covers: with all 28 in use the featured album's captions come up
// too. Unticked, it never hides those.
void SkinProperties::dateAndGenre() {
  const bool isTicked = state_.form4.Check6->isTicked();
  const int last = isTicked ? state_.globals.LastCoverIndex->value() + 1 : kCovers - 1;
  show(state_.form1.Label62, 0, last, isTicked);
  show(state_.form1.Label63, 0, last, isTicked);
}

void SkinProperties::featuredAlbum() {
  const bool isTicked = state_.form4.Check7->isTicked();
  Form1& form1 = state_.form1;
  for (const Family* family :
       std::initializer_list<const Family*>{&form1.Image2, &form1.ucAniGIF1, &form1.Label9, &form1.Label10})
    show(*family, kFeaturedCover, kFeaturedCover, isTicked);
}

// The refill differs on purpose from the 28 rows of the start, which no state of the box brings back.
void SkinProperties::textOnlyList() {
  state_.form4.Combo4->setRows(numbers(state_.form4.Check1->isTicked() ? 50 : 13));
}

// A text-only list has rows beyond the elements that exist; they act as the last row that has some.
void SkinProperties::coverCountChosen() {
  const int row = state_.form4.Combo4->listIndex();
  if (row < 0) return;
  Form1& form1 = state_.form1;
  const int shown = toLastCoverIndex(row);
  const bool hasPictures = !state_.form4.Check1->isTicked();
  show(form1.Label10, 0, shown, true);
  show(form1.Label9, 0, shown, true);
  show(form1.ucAniGIF1, 0, shown, hasPictures);
  show(form1.Image2, 0, shown, hasPictures);
  if (state_.form4.Check6->isTicked()) {
    show(form1.Label62, 0, shown, true);
    show(form1.Label63, 0, shown, true);
  }
  for (const Family* family : std::initializer_list<const Family*>{
           &form1.Label10, &form1.Label9, &form1.ucAniGIF1, &form1.Image2, &form1.Label62, &form1.Label63})
    show(*family, shown + 1, kCovers - 1, false);
  state_.globals.LastCoverIndex->setValue(shown);
}

void SkinProperties::coverTextChanged() {
  Form1& form1 = state_.form1;
  const int last = state_.globals.LastCoverIndex->value();
  for (const Family* family : std::initializer_list<const Family*>{
           &form1.Label10, &form1.Label9, &form1.ucAniGIF1, &form1.Image2, &form1.Label62, &form1.Label63})
    show(*family, last + 1, kCovers - 1, false);
  // The text-only box has no say here.
  for (const Family* family :
       std::initializer_list<const Family*>{&form1.Label10, &form1.Label9, &form1.ucAniGIF1, &form1.Image2})
    show(*family, 0, last, true);
  // The captions of the last cover are hidden with those behind it and come back only with the box.
  show(form1.Label62, last, kCovers - 1, false);
  show(form1.Label63, last, kCovers - 1, false);
  if (!state_.form4.Check6->isTicked()) return;
  show(form1.Label62, 0, last, true);
  show(form1.Label63, 0, last, true);
}

void SkinProperties::skinWidth() {
  sizeWindow(Axis::X);
}

void SkinProperties::skinHeight() {
  sizeWindow(Axis::Y);
}

void SkinProperties::sizeWindow(Axis axis) {
  const double pixels = std::nearbyint(leadingNumber(state_.form4.Text1[static_cast<int>(axis)].text()));
  if (pixels <= 0) return;
  if (const auto twips = PixelsToTwips(screen_, pixels, axis))
    state_.form1.set(sizeOn(axis), static_cast<float>(*twips));
  else
    state_.notes.say(PanelTexts::tr("A canvas of so many pixels is too large; it keeps its size."));
}

}  // namespace veneerer
