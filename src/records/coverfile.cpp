#include "records/coverfile.h"

#include <algorithm>
#include <cmath>

#include "elements/numbers.h"
#include "elements/printable.h"
#include "records/recordreader.h"

namespace veneerer {

namespace {

constexpr int kMostRows = 1000;  // of each family; a stranger's file may be endless
constexpr int kPlaceLines = 4;

// Whole twips, in an order of their own.
void place(Layout& file, Element& element) {
  for (Property p : {Property::Width, Property::Height, Property::Left, Property::Top})
    file.field(ValueKind::Whole, element, p);
}

void style(Layout& file, Label& label) {
  file.alignment(label);
  file.field(ValueKind::Text, label, Property::FontName);
  file.field(ValueKind::FontSize, label, Property::FontSize);
  file.field(ValueKind::Colour, label, Property::ForeColor);
  file.field(ValueKind::Colour, label, Property::BackColor);
}

void placeAndStyle(Layout& file, Label& label) {
  place(file, label);
  style(file, label);
}

// Covers stack towards the middle of the row, so that the middle one is on top: up to the middle each lies
// over the one before, behind it each lies under.
void stack(Form1& form1, int cover, int lastCover) {
  if (cover == 0) return;
  if (cover < lastCover / 2.0 + 1)
    form1.Image2[cover].stackAbove(form1.Image2[cover - 1]);
  else
    form1.Image2[cover].stackBelow(form1.Image2[cover - 1]);
}

// A row for each cover. A stranger's file may hold more of them than there are covers.
template <class T, class Body>
void rows(Layout& file, Array<T>& family, int last, Body body) {
  const int before = file.lineCount();
  file.each(family, 0, std::min(last, kHighestCover), body);
  const int linesOfOne = (file.lineCount() - before) / (kHighestCover + 1);
  for (int i = kHighestCover + 1; i <= last; ++i) {
    for (int line = 0; line < linesOfOne; ++line) file.literal("");
    file.block();
  }
}

Layout::Step coverPlaced(int cover, int lastCover) {
  return [cover, lastCover](Loading& loading) {
    ImageBox& image = loading.state.form1.Image2[cover];
    image.setToolTipText(QStringLiteral("Cover ") + QString::number(cover));
    image.setStretch(true);
    stack(loading.state.form1, cover, lastCover);
  };
}

// An empty value counts as 0 here as it does when the line is read.
double asNumber(const RecordValue& value) {
  if (std::holds_alternative<std::monostate>(value)) return 0;
  if (const auto* truth = std::get_if<bool>(&value)) return *truth ? -1 : 0;
  const auto* number = std::get_if<double>(&value);
  return number ? *number : -1;
}

/// The rows of the covers, from their heading to the next one.
int rowsAhead(RecordReader& reader) {
  if (!reader.atEnd()) reader.readValue();
  int values = 0;
  while (values < kMostRows * kPlaceLines && !reader.atEnd() &&
         !std::holds_alternative<QString>(reader.readValue()))
    ++values;
  return values / kPlaceLines;
}

void featuredAlbum(Layout& file, State& state) {
  Form1& form1 = state.form1;
  file.block();
  file.checkValue(*state.form4.Check7);
  file.block();
  place(file, form1.ucAniGIF1[kFeaturedCover]);
  file.block();
  place(file, form1.Image2[kFeaturedCover]);
  file.block();
  placeAndStyle(file, form1.Label9[kFeaturedCover]);
  file.block();
  placeAndStyle(file, form1.Label10[kFeaturedCover]);
}

}  // namespace

int lastCoverOf(const QByteArray& bytes) {
  RecordReader reader(bytes);
  if (!reader.atEnd()) reader.readValue();
  if (reader.atEnd()) return -1;
  const double told = std::nearbyint(asNumber(reader.readValue()));
  return told <= kHighestCover ? toLastCoverIndex(told) : rowsAhead(reader) - 1;
}

Layout coverFile(State& state, const QString& name, int last) {
  Form1& form1 = state.form1;
  Form4& form4 = state.form4;
  Layout file(state, name);
  file.checkValue(*form4.Check1);
  file.counter(*state.globals.LastCoverIndex, "LastCoverIndex", toLastCoverIndex);
  file.literal("Album Covers");
  rows(file, form1.Image2, last, [&](ImageBox& cover) {
    place(file, cover);
    file.then(coverPlaced(cover.index(), std::min(last, kHighestCover)));
  });
  file.literal("Album Frames");
  rows(file, form1.ucAniGIF1, last, [&](AnimatedFrame& frame) { place(file, frame); });
  file.literal("Album Title");
  // Older files end somewhere behind this heading.
  file.optionalFromHere();
  rows(file, form1.Label9, last, [&](Label& title) { place(file, title); });
  file.literal("Artist Title");
  rows(file, form1.Label10, last, [&](Label& artist) { place(file, artist); });
  file.checkValue(*form4.Check3);
  file.checkValue(*form4.Check4);
  file.checkValue(*form4.Check5);
  file.block();
  file.literal("Album Title (Colour and Font)");
  rows(file, form1.Label9, last, [&](Label& title) { style(file, title); });
  file.literal("Artist Title (Colour and Font)");
  rows(file, form1.Label10, last, [&](Label& artist) { style(file, artist); });
  featuredAlbum(file, state);
  file.block();
  file.checkValue(*form4.Check11);
  file.block();
  file.checkValue(*form4.Check6);
  file.block();
  file.literal("Album Year");
  rows(file, form1.Label62, last, [&](Label& year) { placeAndStyle(file, year); });
  file.literal("Album Genre");
  rows(file, form1.Label63, last, [&](Label& genre) { placeAndStyle(file, genre); });
  file.scaleWholes(0, state.globals.CoverScale);
  return file;
}

QString coverFileName(const QString& typed) {
  const QString ending = QStringLiteral(".cov");
  const QString name = typed.contains(u'.') ? typed : typed + ending;
  const auto separates = [](QChar c) { return c == u'/' || c == u'\\'; };
  // What can't be seen in a list had better not be made.
  const bool isPlain = name == printable(name) && !name.startsWith(u'.') &&
                       !name.contains(QStringLiteral("..")) && std::ranges::none_of(name, separates);
  return isPlain && name.endsWith(ending, Qt::CaseInsensitive) ? name : QString();
}

}  // namespace veneerer
