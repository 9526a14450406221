// How a constexpr table names a family: by the window's own member, so that a misspelt name doesn't compile.
#pragma once

#include "forms/state.h"

namespace veneerer {

using FamilyRef = Family& (*)(State&);

template <auto Member>
inline constexpr FamilyRef kCanvas = [](State& state) -> Family& { return state.form1.*Member; };

template <auto Member>
inline constexpr FamilyRef kTools = [](State& state) -> Family& { return state.form6.*Member; };

}  // namespace veneerer
