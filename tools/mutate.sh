#!/usr/bin/env bash
# Plants one fault at a time in a copy of the sources and tells which test program catches it.
#   tools/mutate.sh [COUNT [SEED [FIRST]]]    100 faults of seed 1 without them, from the first one drawn on
#   tools/mutate.sh --again    those once more that survived the last time, by the tests of now
# With MUTATE_QUICKLY set only the folder's own tests and the four programs are asked that see most of the system.
# The report is kept in build/mutate/report.txt.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages "${BUILD_PACKAGES[@]}" lld python3
exec python3 tools/mutate.py "$@"
