// A click makes an element the one in hand: its Section becomes the current one and the fields of Form6 show
// its values.
#pragma once

#include "forms/state.h"

namespace veneerer {

class Selection {
public:
  explicit Selection(State& state) : state_(state) {}

  /// Clicks an element of the canvas or a sample of Form6. Filling a field is a change of that field like any
  /// other: the tools hear of it with the new Section already current. A family without a Section is left
  /// alone.
  void click(Element& element);

  /// Shows the values of the element in hand in the fields of Form6; no tool hears of it.
  void refill();

private:
  void fillFields(Element& element);
  void fillSample(Button& sample);
  void fillButton(Button& button);
  void fillLabel(const Label& label);
  void fillSize(const Element& element);
  void fillPlace(const Element& element);

  State& state_;
};

}  // namespace veneerer
