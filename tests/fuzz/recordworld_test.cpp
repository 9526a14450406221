// A finding is played again alone, so no run may leave anything behind for the next one.
#include "fuzz/recordworld.h"

#include <gtest/gtest.h>

#include "designer/restoredstate.h"
#include "fuzz/target.h"

namespace veneerer::fuzz {
namespace {

test::RestoredState restored() {
  RecordWorld world;
  return test::RestoredState(world.state());
}

class RecordWorldAfter : public testing::TestWithParam<const char*> {};

TEST_P(RecordWorldAfter, EachRunIsAsItWas) {
  const test::RestoredState before = restored();
  const Target& target = *findTarget(GetParam());
  const QList<QByteArray> seeds = target.seeds();
  for (qsizetype i = 0; i < seeds.size(); i += 1 + seeds.size() / 30) {
    target.run(seeds[i].left(target.mostBytes));
    ASSERT_EQ(before.difference(restored()), "") << "after seed " << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Fuzz, RecordWorldAfter, testing::Values("records", "covers"),
                         [](const auto& of) { return std::string(of.param); });

}  // namespace
}  // namespace veneerer::fuzz
