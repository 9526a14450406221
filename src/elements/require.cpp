#include "elements/require.h"

#include <cstdio>
#include <cstdlib>

namespace veneerer {

void stopProgram(const char* what) {
  std::fprintf(stderr, "internal error: %s\n", what);
  std::abort();
}

}  // namespace veneerer
