#!/usr/bin/env bash
# Runs each test program of the release build as one process, its tests in a random order: none may lean on
# what another one left behind. A failure tells the order's seed; --gtest_random_seed=N repeats it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

export QT_QPA_PLATFORM=offscreen
for program in build/release/tests/test_*; do
  [ -x "$program" ] && [ -f "$program" ] || continue
  output=$("$program" --gtest_shuffle --gtest_brief=1 "$@" 2>&1) || {
    echo "$output"
    exit 1
  }
done
