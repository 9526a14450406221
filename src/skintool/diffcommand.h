// The command diff: differences as lines.
#pragma once

#include <cstdio>

#include "designer/designer.h"
#include "skintool/arguments.h"

namespace veneerer {

/// Prints what a save of the Skin in hand would change in its own folder. The exit status: 1 when there is
/// something, else 0.
int printUnsaved(Designer& designer, std::FILE* out);

/// Prints what differs between the two Skins of the command line. The exit status as above.
int runDiff(const Arguments& arguments, std::FILE* out);

}  // namespace veneerer
