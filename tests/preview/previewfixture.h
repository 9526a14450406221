// The built-in design, to be looked at without a designer.
#pragma once

#include <gtest/gtest.h>

#include "design/design.h"
#include "forms/state.h"
#include "platform/platform.h"

namespace veneerer::test {

class PreviewFixture : public testing::Test {
protected:
  PreviewFixture() { applyBuiltInDesign(state); }

  State state;
  Screen screen;
};

}  // namespace veneerer::test
