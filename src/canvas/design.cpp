#include "canvas/design.h"

#include "canvas/design/screens.h"
#include "canvas/design/startstate.h"
#include "canvas/design/toolwindows.h"

namespace veneerer {

void applyBuiltInDesign(State& state) {
  const design::Plan plan = design::builtInPlan();
  design::Composer composer(state, plan, design::blackAndBlue());
  design::composeCanvas(composer);
  design::showStartState(state);
  design::composeToolWindows(state);
}

}  // namespace veneerer
