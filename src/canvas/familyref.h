// How a constexpr table names a family: by the window's own member, so that a misspelt name doesn't compile.
#pragma once

#include <cstddef>

#include "forms/state.h"

namespace veneerer {

class FamilyRef {
public:
  using Finder = const Family& (*)(const State&);

  constexpr FamilyRef(std::nullptr_t = nullptr) {}
  constexpr explicit FamilyRef(Finder finder) : finder_(finder) {}

  constexpr explicit operator bool() const { return finder_ != nullptr; }
  /// The family in that state. The reference must name one.
  const Family& operator()(const State& state) const { return finder_(state); }
  /// Whoever may change the state may change its families.
  Family& operator()(State& state) const { return const_cast<Family&>(finder_(state)); }

private:
  Finder finder_ = nullptr;
};

template <auto Member>
inline constexpr FamilyRef kCanvas = FamilyRef([](const State& state) -> const Family& {
  return state.form1.*Member;
});

template <auto Member>
inline constexpr FamilyRef kTools = FamilyRef([](const State& state) -> const Family& {
  return state.form6.*Member;
});

}  // namespace veneerer
