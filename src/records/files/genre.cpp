// The genre screen, the genre bar and the filter screen.
//
// What is shown is decided when all of genre.ini is read, over what the panel's rules did when its lists were
// set on the way. The alignments at its end aren't the last word: label_align.ini is read later and names
// the same labels.
#include "elements/numbers.h"
#include "forms/counts.h"
#include "records/recordfiles.h"

namespace veneerer {

namespace {

constexpr int kThumbnailsPerGenre = 4;

template <class T>
void showBelow(const Array<T>& array, int count) {
  for (Element* member : array.members()) member->setVisible(member->index() < count);
}

// With R the genre style and N the number of genres: names below N; icons when R is above 0; thumbnails, four
// to a genre, when R is 2; album counts by N for the first two styles, as they stand for the others.
void showGenres(Loading& loading) {
  Form1& form1 = loading.state.form1;
  const int style = loading.state.form4.Combo5->listIndex();
  const int count = std::clamp(leadingWhole(loading.state.form4.Combo7->text()), 0, kGenres);
  if (style < 2) showBelow(form1.Label59, count);
  showBelow(form1.Label20, count);
  showBelow(form1.Picture20, style > 0 ? count : 0);
  showBelow(form1.Picture26, style == 2 ? kThumbnailsPerGenre * count : 0);
}

}  // namespace

Layout genreFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "genre.ini");
  file.listIndex(*state.form4.Combo5);
  file.reference(*state.names.GenreName, {&form1.Picture1[13], &*state.form5.Image8});
  file.optionalFromHere();
  file.labels(form1.Label20, 0, 27);
  file.placedButtons(form1.lvButtons_H35, 0, 1);
  file.placedButtons(form1.lvButtons_H46, 0, 2, "Genre Buttons ");
  file.placedButton(form1.lvButtons_H35[2]);
  file.places(form1.Picture20, 0, 27);
  const std::size_t numberBlock = file.size();
  file.literal("Genre Numbers");
  file.field(ValueKind::NumberText, *state.form4.Combo7, Property::Text);
  file.places(form1.Picture2, 9, 9);
  file.labels(form1.Label59, 0, 27);
  file.places(form1.Picture26, 0, 111);
  file.placedButton(form1.lvButtons_H35[3]);
  file.listIndex(*state.form4.Combo11);
  file.placedButtons(form1.lvButtons_H35, 4, 30);
  // Each label's alignment stands twice; on reading the later one stands.
  file.each(form1.Label20, 0, 27, [&](Label& label) {
    file.alignment(label);
    file.alignment(label);
  });
  file.checkValue(*state.form4.Check12);
  file.atEnd([numberBlock](Loading& loading) {
    if (loading.lines.size() <= numberBlock) loading.state.form4.Combo7->setText(QString::number(kGenres));
  });
  file.atEnd(showGenres);
  file.atEnd([](Loading& loading) {
    loading.show(QStringLiteral("\\images\\genre.gif"), loading.state.form1.Picture2[9]);
  });
  return file;
}

Layout genreBarFile(State& state) {
  Layout file(state, "genre_bar.ini");
  file.literal("Null");
  file.placeQuad(state.form1.Picture12[0]);
  file.placedButtons(state.form1.lvButtons_H39, 0, 9, "Genre Bar Buttons ");
  return file;
}

Layout filterFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "filter.ini");
  file.reference(*state.names.FilterName, {&*form1.Picture24});
  file.labelRecord(*form1.Label54);
  file.alignment(*form1.Label54);
  file.optionalFromHere();
  file.placeQuad(*form1.Picture24);
  file.block();
  file.field(ValueKind::Colour, *form1.Picture24, Property::BackColor);
  file.block();
  file.field(ValueKind::Colour, *form1.Picture24, Property::ForeColor);
  return file;
}

}  // namespace veneerer
