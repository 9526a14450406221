#!/usr/bin/env bash
# Runs each test program of a build as one process, its tests in a random order: none may lean on what another
# one left behind. The build is a preset's name, release without one; further arguments go to the programs. A
# failure tells the order's seed; --gtest_random_seed=N repeats it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

preset=release
if (($#)) && [[ $1 != -* ]]; then
  preset=$1
  shift
fi
export QT_QPA_PLATFORM=offscreen

# run_shuffled PROGRAM ARGUMENT...: what it prints is told in one piece, and only when it fails. One that hangs
# is ended.
run_shuffled() {
  local program=$1 output start=$SECONDS
  shift
  output=$(timeout --kill-after=10 15m "$program" --gtest_shuffle --gtest_brief=1 "$@" 2>&1) || {
    printf '%s\n%s: FAILED\n' "$output" "$program" >&2
    return 1
  }
  echo "$(basename "$program"): passed in $((SECONDS - start)) s"
}
export -f run_shuffled

# The largest first, since they take longest.
find "build/$preset/tests" -maxdepth 1 -name 'test_*' -type f -executable -printf '%s %p\0' | sort -z -r -n |
  sed -z 's/^[0-9]* //' |
  xargs -0 -P "$(nproc)" -I '{}' bash -c 'run_shuffled "$@"' shuffle '{}' "$@"
