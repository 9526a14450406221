// A law of the system: what holds for whatever values. RapidCheck draws them, and of those that break a law
// it looks for the smallest.
#pragma once

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <QtGlobal>
#include <random>
#include <sstream>

namespace veneerer::test {

/// Tries the law with so many draws, of random values that are the same in each run; RC_PARAMS asks for
/// others:
///   RC_PARAMS="seed=7 max_success=1000" build/release/tests/test_laws
template <class Law>
void tryLaw(int draws, Law law) {
  rc::detail::TestParams params = rc::detail::configuration().testParams;
  const QByteArray given = qgetenv("RC_PARAMS");
  if (!given.contains("seed")) params.seed = 20;
  if (!given.contains("max_success")) params.maxSuccess = draws;
  const auto result = rc::detail::checkTestable(law, rc::detail::TestMetadata(), params);
  if (result.template is<rc::detail::SuccessResult>()) return;
  std::ostringstream told;
  rc::detail::printResultMessage(result, told);
  ADD_FAILURE() << told.str();
}

/// What a single number stands for, where what can be done depends on what is there: it is rolled out of it,
/// always the same.
class Dice {
public:
  explicit Dice(std::uint32_t seed) : random_(seed) {}
  /// 0 to count - 1.
  int below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  int between(int low, int high) { return low + below(high - low + 1); }
  template <class List>
  auto& oneOf(const List& list) {
    return list[static_cast<std::size_t>(below(static_cast<int>(std::size(list))))];
  }

private:
  std::mt19937 random_;
};

}  // namespace veneerer::test
