#!/usr/bin/env bash
# Static analysis of the sources under src by the checks of .clang-tidy, every finding an error. Arguments are
# regular expressions that choose files: tools/lint.sh src/records
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages "${BUILD_PACKAGES[@]}" clang-tidy
# A configuration of its own, because precompiled headers are in GCC's format.
cmake --preset release -B build/lint -DVENEERER_PCH=OFF -DVENEERER_TESTS=OFF >/dev/null
(($#)) || set -- "$PWD/src/"
findings=$(mktemp)
trap 'rm -f "$findings"' EXIT
# The compiler is GCC, some of whose options are unknown here.
if ! run-clang-tidy -quiet -p build/lint -j "$(nproc)" -extra-arg=-Wno-unknown-warning-option "$@" \
  >"$findings" 2>&1; then
  grep -E -A 4 '(error|warning): ' "$findings" || cat "$findings"
  exit 1
fi
