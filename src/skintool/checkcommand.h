// The command check: the findings of each Skin as lines.
#pragma once

#include <cstdio>

#include "skintool/arguments.h"

namespace veneerer {

/// Prints one line a finding of the one Skin, the worst first; as a piece of a check of several, each with
/// its kind's number and the Skin's name ahead. The exit status: 1 when there is an error, else 0.
int runCheck(const Arguments& arguments, std::FILE* out);

}  // namespace veneerer
