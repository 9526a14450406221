// Assertions that stay in release builds: better a stop than a spoiled Skin.
#pragma once

namespace veneerer {

[[noreturn]] void stopProgram(const char* what);

/// Ends the program with that sentence when an error of the program itself shows; never used for bad input.
inline void require(bool holds, const char* what) {
  if (!holds) [[unlikely]]
    stopProgram(what);
}

}  // namespace veneerer
