// The command new.
#pragma once

#include <cstdio>

#include "skintool/arguments.h"

namespace veneerer {

/// Draws the Skin that the command line wishes, and tells on err, one line each, what had to be otherwise; or
/// lists the looks on out. The exit status. Throws ExchangeError.
int runNew(const Arguments& arguments, std::FILE* out, std::FILE* err);

}  // namespace veneerer
