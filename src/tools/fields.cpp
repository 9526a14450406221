#include "tools/fields.h"

#include "canvas/sections.h"
#include "elements/numbers.h"

namespace veneerer {

namespace {

constexpr int kScreens = 101;
constexpr int kArtistCaptions = 112;
constexpr int kAlbumCaptions = 113;
constexpr int kFeaturedCover = 28;

void applyRow(State& state, const ComboBox& list, ToolField field, Property property) {
  Element* element = currentElement(state, field);
  if (element && list.listIndex() >= 0) element->set(property, list.listIndex());
}

void alignCovers(Array<Label>& captions, int clicked, int lastCover, int alignment) {
  const int first = clicked < kFeaturedCover ? 0 : kFeaturedCover;
  const int last = clicked < kFeaturedCover ? lastCover : kFeaturedCover;
  for (int i = first; i <= last && captions.find(i); ++i) captions[i].setAlignment(alignment);
}

}  // namespace

void applyCaption(State& state) {
  if (Element* button = currentElement(state, ToolField::Caption))
    button->set(Property::Caption, state.form6.Text1->text());
}

void applyPlace(State& state, int field) {
  const float twips = leadingSingle(state.form6.Text9[field].text());
  Element* screen = state.globals.SectionNumber == kScreens ? currentElement(state) : nullptr;
  if (screen && twips > 0) screen->set(field == 0 ? Property::Top : Property::Left, twips);
}

void applyShape(State& state) {
  applyRow(state, *state.form6.Combo1, ToolField::Shape, Property::ButtonShape);
}

void applyStyle(State& state) {
  applyRow(state, *state.form6.Combo2, ToolField::Style, Property::ButtonStyle);
}

void applyGradient(State& state) {
  applyRow(state, *state.form6.Combo4, ToolField::Gradient, Property::GradientMode);
}

void applyAlignment(State& state) {
  const int row = state.form6.Combo5->listIndex();
  const int section = state.globals.SectionNumber;
  if (section != kArtistCaptions && section != kAlbumCaptions) {
    applyRow(state, *state.form6.Combo5, ToolField::Alignment, Property::Alignment);
  } else if (row >= 0) {
    auto& captions = section == kArtistCaptions ? state.form1.Label9 : state.form1.Label10;
    alignCovers(captions, state.globals.ElementIndex, state.globals.LastCoverIndex->value(), row);
  }
}

}  // namespace veneerer
