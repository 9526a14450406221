#!/usr/bin/env bash
# Plants one fault at a time in a copy of the sources and tells which test program catches it.
#   tools/mutate.sh [COUNT [SEED]]    100 faults of seed 1 without them
#   tools/mutate.sh --again           those once more that survived the last time, by the tests of now
# The report is kept in build/mutate/report.txt.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages "${BUILD_PACKAGES[@]}" lld python3
exec python3 tools/mutate.py "$@"
