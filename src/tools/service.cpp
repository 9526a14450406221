#include "tools/service.h"

#include <algorithm>

#include "canvas/sections.h"

namespace veneerer {

namespace {

struct Service {
  FamilyRef control;
  ToolField field;
};

constexpr Service kServices[] = {
    {kTools<&Form6::Text1>, ToolField::Caption},        {kTools<&Form6::Text2>, ToolField::TypedColour},
    {kTools<&Form6::Text3>, ToolField::Size},           {kTools<&Form6::Text4>, ToolField::FontSize},
    {kTools<&Form6::Text9>, ToolField::Place},          {kTools<&Form6::Combo1>, ToolField::Shape},
    {kTools<&Form6::Combo2>, ToolField::Style},         {kTools<&Form6::Combo4>, ToolField::Gradient},
    {kTools<&Form6::Combo5>, ToolField::Alignment},     {kTools<&Form6::List1>, ToolField::FontName},
    {kTools<&Form6::Command14>, ToolField::FontDialog},
};

}  // namespace

bool servesWhatIsInHand(const State& state, const Element& control) {
  const auto found = std::ranges::find_if(
      kServices, [&](const Service& service) { return &service.control(state) == control.family(); });
  return found == std::end(kServices) || isServed(state, found->field);
}

}  // namespace veneerer
