#!/usr/bin/env bash
# Runs all tests under AddressSanitizer and UBSan, in any order. Arguments go to the test programs.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages "${BUILD_PACKAGES[@]}" clang libclang-rt-dev
build asan
export ASAN_OPTIONS=detect_leaks=1
export LSAN_OPTIONS=suppressions=$PWD/tools/lsan.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1
tools/shuffle.sh asan "$@"
