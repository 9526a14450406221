#include "design/design.h"

#include "design/screens.h"
#include "design/startstate.h"
#include "design/toolwindows.h"

namespace veneerer {

void applyBuiltInDesign(State& state) {
  const design::Plan plan = design::builtInPlan();
  design::Composer composer(state, plan, design::blackAndBlue());
  design::composeCanvas(composer);
  design::showStartState(state);
  design::composeToolWindows(state);
}

}  // namespace veneerer
