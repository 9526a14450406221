#!/usr/bin/env bash
# Runs all tests under AddressSanitizer and UBSan, in any order. Arguments go to the test programs.
#   tools/sanitize.sh thread [ARGUMENT...]    ThreadSanitizer, over the tests of what uses a second thread
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages "${BUILD_PACKAGES[@]}" clang lld libclang-rt-dev

# Of each program the tests that let a second thread work: decoding, the rescale, glances at Skins, and all
# that the windows give away. Not the processes side by side: where a thread starts one, a check of the
# sanitizer's own fails.
readonly THREADED=(
  "images PictureTest.*:Decoding.*:PictureTrials.*"
  "tools RescaleTest.*"
  "gallery *"
  "skintool Rendering.*:Check.*:Skintool.*"
  "ui Fetching.*:BackgroundWork.*:Opening.*:PictureDialog.*:Compare.*:Exporting.*:Recolour.*:Outlook.*:ExchangeMenu.*:Following.*"
)

# run_threaded FOLDER FILTER ARGUMENT...: each pattern must choose some test.
run_threaded() {
  local folder=$1 filter=$2 pattern patterns
  shift 2
  IFS=: read -r -a patterns <<<"$filter"
  for pattern in "${patterns[@]}"; do
    if [[ -z $("build/tsan/tests/test_$folder" --gtest_filter="$pattern" --gtest_list_tests) ]]; then
      echo "No test of $folder is called $pattern" >&2
      return 1
    fi
  done
  "build/tsan/tests/test_$folder" --gtest_filter="$filter" --gtest_brief=1 "$@"
}

if [[ ${1:-} == thread ]]; then
  shift
  programs=("${THREADED[@]%% *}")
  build tsan "${programs[@]/#/test_}"
  export QT_QPA_PLATFORM=offscreen
  export TSAN_OPTIONS=suppressions=$PWD/tools/tsan.supp:print_suppressions=0:second_deadlock_stack=1
  for each in "${THREADED[@]}"; do run_threaded "${each%% *}" "${each#* }" "$@"; done
  exit
fi

build asan
export ASAN_OPTIONS=detect_leaks=1
export LSAN_OPTIONS=suppressions=$PWD/tools/lsan.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1
# A look draws by the same code in each size.
tools/shuffle.sh asan --gtest_filter='-*EveryLook*_640x1138:*EveryLook*_1120x480' "$@"
