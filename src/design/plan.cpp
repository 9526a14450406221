#include "design/plan.h"

namespace veneerer::design {

Plan builtInPlan() {
  Plan plan;
  plan.logo = {0, 0, 160, 80};
  plan.name = {8, 0, 144, 80};
  plan.menu = {0, 80, 160, 520};
  plan.menuColumns = 2;
  plan.player = {160, 0, 640, 80};
  plan.status = {160, 548, 640, 52};
  plan.screen = {160, 80, 640, 468};
  plan.stage = plan.screen;
  plan.dialog = {160, 80, 649, 521};
  plan.confirm = {160, 80, 665, 521};
  plan.pin = {600, 608, 201, 305};
  plan.popup = {170, 150, 300, 388};
  plan.genreBar = {160, 80, 640, 60};
  return plan;
}

}  // namespace veneerer::design
