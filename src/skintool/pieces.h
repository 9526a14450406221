// A command on several Skins as one command line a Skin, and what comes of them put together.
#pragma once

#include <cstdio>
#include <functional>

#include "skintool/arguments.h"
#include "skintool/sidebyside.h"

namespace veneerer {

/// Runs command lines (without the program's name), which share a standard input, and tells what came of each
/// in their order.
using RunCommands = std::function<void(const QList<QStringList>& commands, const QByteArray& input,
                                       const std::function<void(const CommandResult&)>& tell)>;

/// Check or render on several Skins. The exit status is the worst of all.
int runPieces(const Arguments& arguments, const RunCommands& runCommands, std::FILE* out, std::FILE* err);

}  // namespace veneerer
