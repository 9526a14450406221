// Text3 on the element in hand. A button rebuilds its outline at the new size, for which its shape is set to
// 0 and back; the families that do otherwise stand in a table.
#include <algorithm>

#include "canvas/sections.h"
#include "elements/numbers.h"
#include "tools/fields.h"

namespace veneerer {

namespace {

enum class Edge { Height = 0, Width = 1 };

Property propertyOf(Edge edge) {
  return edge == Edge::Height ? Property::Height : Property::Width;
}

void setPlain(Element& element, Edge edge, float twips) {
  element.set(propertyOf(edge), twips);
}

// A shape that doesn't come back says nothing of itself: the size was asked for.
void setKeepingShape(Button& button, Edge edge, float twips) {
  const QuietRefusals quiet(button.window().board());
  const int shape = button.buttonShape();
  button.setButtonShape(0);
  setPlain(button, edge, twips);
  button.setButtonShape(shape);
}

/// The rule of pictures, labels and the buttons that no exception names.
void setSize(Element& element, Edge edge, float twips) {
  if (element.kind() == Kind::Button)
    setKeepingShape(cast<Button>(element), edge, twips);
  else
    setPlain(element, edge, twips);
}

using SizeStep = void (*)(State& state, Element& element, Edge edge, float twips);

void plain(State&, Element& element, Edge edge, float twips) {
  setPlain(element, edge, twips);
}

// A height typed for a menu button also gives it the shape of the list and the last picture size.
void menuHeight(State& state, Element& element, Edge edge, float twips) {
  setPlain(element, edge, twips);
  const int row = state.form6.Combo1->listIndex();
  if (row >= 0) element.set(Property::ButtonShape, row);
  cast<Button>(element).setPictureSize(PictureSize::Fitted);
}

Button& thumb(State& state) {
  Element* found = state.form1.lvButtons_H5.find(state.globals.ElementIndex);
  return found ? cast<Button>(*found) : state.form1.lvButtons_H5[0];
}

// A height typed for a general sample goes to the sample, with the shape step on the slider thumb of the same
// index; a width goes to the slider thumb alone.
void sampleHeight(State& state, Element& sample, Edge edge, float twips) {
  const QuietRefusals quiet(state.board);
  Button& button = thumb(state);
  const int shape = button.buttonShape();
  button.setButtonShape(0);
  setPlain(sample, edge, twips);
  button.setButtonShape(shape);
}

void sampleWidth(State& state, Element&, Edge edge, float twips) {
  setKeepingShape(thumb(state), edge, twips);
}

// The first slider's thumb becomes as wide as its track whenever the track's height is typed.
void trackHeight(State& state, Element& track, Edge edge, float twips) {
  setPlain(track, edge, twips);
  if (state.globals.ElementIndex == 0) state.form1.lvButtons_H5[0].setWidth(track.width());
}

struct Exception {
  FamilyRef family;
  Edge edge;
  SizeStep step;
};

constexpr Exception kExceptions[] = {
    {kCanvas<&Form1::lvButtons_H1>, Edge::Height, menuHeight},
    {kTools<&Form6::lvButtons_H5>, Edge::Height, sampleHeight},
    {kTools<&Form6::lvButtons_H5>, Edge::Width, sampleWidth},
    {kCanvas<&Form1::lvButtons_H13>, Edge::Height, plain},
    {kCanvas<&Form1::Picture13>, Edge::Height, trackHeight},
    {kCanvas<&Form1::lvButtons_H5>, Edge::Height, plain},
    {kCanvas<&Form1::lvButtons_H5>, Edge::Width, plain},
};

void applyEdge(State& state, Element& element, Edge edge, float twips) {
  const auto exception = std::ranges::find_if(
      kExceptions, [&](const Exception& row) { return row.edge == edge && isInHand(state, row.family); });
  if (exception != std::end(kExceptions))
    exception->step(state, element, edge, twips);
  else
    setSize(element, edge, twips);
}

}  // namespace

void applySize(State& state, int field) {
  const float twips = leadingSingle(state.form6.Text3[field].text());
  Element* element = currentElement(state, ToolField::Size);
  if (element && twips > 0) applyEdge(state, *element, static_cast<Edge>(field), twips);
}

}  // namespace veneerer
