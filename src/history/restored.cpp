#include "history/restored.h"

#include "canvas/screens.h"

namespace veneerer {

namespace {

// Of the tools' window the record files hold the samples of the button and the font, and the keys' colour.
bool isStoredSample(const Form6& form, const Family* family) {
  return family == &form.Label5 || family == &form.lvButtons_H5 || family == &form.Picture1;
}

bool isRestoredIn(const State& state, const Element& element) {
  const Window* window = &element.window();
  if (window == &state.form6) return isStoredSample(state.form6, element.family());
  return window == &state.form1 || window == &state.form2 || window == &state.form4 ||
         window == &state.form5 || window == &state.names || window == &state.globals;
}

}  // namespace

bool isRestored(const State& state, const Element& element, Property property) {
  if (property == Property::Visible && (!element.family() || isScreen(state, element))) return false;
  if (property == Property::StackOrder && isScreen(state, element)) return false;
  return isRestoredIn(state, element);
}

}  // namespace veneerer
