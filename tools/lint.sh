#!/usr/bin/env bash
# Static analysis of the sources under src by the checks of .clang-tidy, every finding an error. Arguments are
# regular expressions that choose files: tools/lint.sh src/records
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages "${BUILD_PACKAGES[@]}" clang clang-tidy python3
# A configuration of its own, because precompiled headers are in GCC's format.
cmake --preset release -B build/lint -DVENEERER_PCH=OFF -DVENEERER_TESTS=OFF >/dev/null
python3 tools/lint_units.py build/lint "$@"
