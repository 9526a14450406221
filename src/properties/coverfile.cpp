#include "properties/coverfile.h"

#include <algorithm>
#include <cmath>

#include "elements/numbers.h"
#include "records/recordreader.h"

namespace veneerer {

namespace {

constexpr int kLastCover = 27;
constexpr int kFeatured = 28;

// Whole twips, in an order of their own.
void place(Layout& file, Element& element) {
  for (Property p : {Property::Width, Property::Height, Property::Left, Property::Top})
    file.field(ValueKind::Whole, element, p);
}

void style(Layout& file, Label& label) {
  file.alignment(label);
  file.field(ValueKind::Text, label, Property::FontName);
  file.field(ValueKind::FontSize, label, Property::FontSize);
  file.field(ValueKind::Long, label, Property::ForeColor);
  file.field(ValueKind::Long, label, Property::BackColor);
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

Layout::Step coverPlaced(int cover, int lastCover) {
  return [cover, lastCover](Loading& loading) {
    ImageBox& image = loading.state.form1.Image2[cover];
    image.setToolTipText(QStringLiteral("Cover ") + QString::number(cover));
    image.setStretch(true);
    stack(loading.state.form1, cover, lastCover);
  };
}

void featuredAlbum(Layout& file, State& state) {
  Form1& form1 = state.form1;
  file.block();
  file.checkValue(*state.form4.Check7);
  file.block();
  place(file, form1.ucAniGIF1[kFeatured]);
  file.block();
  place(file, form1.Image2[kFeatured]);
  file.block();
  placeAndStyle(file, form1.Label9[kFeatured]);
  file.block();
  placeAndStyle(file, form1.Label10[kFeatured]);
}

}  // namespace

// An empty value counts as 0 here as it does when the line is read.
int lastCoverOf(const QByteArray& bytes) {
  RecordReader reader(bytes);
  if (!reader.atEnd()) reader.readValue();
  if (reader.atEnd()) return -1;
  const RecordValue value = reader.readValue();
  if (std::holds_alternative<std::monostate>(value)) return 0;
  if (const auto* truth = std::get_if<bool>(&value)) return *truth ? -1 : 0;
  const auto* number = std::get_if<double>(&value);
  return number ? static_cast<int>(std::clamp(std::nearbyint(*number), -1.0, double(kLastCover))) : -1;
}

Layout coverFile(State& state, const QString& name, int lastCover) {
  Form1& form1 = state.form1;
  Form4& form4 = state.form4;
  const int last = std::min(lastCover, kLastCover);
  Layout file(state, name);
  file.checkValue(*form4.Check1);
  file.counter(state.globals.LastCoverIndex, "LastCoverIndex");
  file.literal("Album Covers");
  file.each(form1.Image2, 0, last, [&](ImageBox& cover) {
    place(file, cover);
    file.then(coverPlaced(cover.index(), last));
  });
  file.literal("Album Frames");
  file.each(form1.ucAniGIF1, 0, last, [&](AnimatedFrame& frame) { place(file, frame); });
  file.literal("Album Title");
  // Older files end somewhere behind this heading.
  file.optionalFromHere();
  file.each(form1.Label9, 0, last, [&](Label& title) { place(file, title); });
  file.literal("Artist Title");
  file.each(form1.Label10, 0, last, [&](Label& artist) { place(file, artist); });
  file.checkValue(*form4.Check3);
  file.checkValue(*form4.Check4);
  file.checkValue(*form4.Check5);
  file.block();
  file.literal("Album Title (Colour and Font)");
  file.each(form1.Label9, 0, last, [&](Label& title) { style(file, title); });
  file.literal("Artist Title (Colour and Font)");
  file.each(form1.Label10, 0, last, [&](Label& artist) { style(file, artist); });
  featuredAlbum(file, state);
  file.block();
  file.checkValue(*form4.Check11);
  file.block();
  file.checkValue(*form4.Check6);
  file.block();
  file.literal("Album Year");
  file.each(form1.Label62, 0, last, [&](Label& year) { placeAndStyle(file, year); });
  file.literal("Album Genre");
  file.each(form1.Label63, 0, last, [&](Label& genre) { placeAndStyle(file, genre); });
  file.scaleWholes(0, state.globals.CoverScale);
  return file;
}

}  // namespace veneerer
