#!/usr/bin/env bash
# Fuzzes the program with libFuzzer under AddressSanitizer and UBSan, built by clang.
#   tools/fuzz.sh MINUTES [TARGET...]    all targets one after the other, so many minutes each
# What reaches new code is kept in build/fuzz/corpus/TARGET for the next run. A finding stands in
# build/fuzz/findings, TARGET-crash-... and its like, and the exit status is 1; build/fuzz/fuzz/fuzz_TARGET FILE
# plays it again.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

# Without a minute it would never end.
if (($# < 1)) || ! [[ $1 =~ ^[1-9][0-9]*$ ]]; then
  sed -n '2,6s/^# \{0,1\}//p' "$0" >&2
  exit 2
fi
seconds=$(($1 * 60))
shift

need_packages "${BUILD_PACKAGES[@]}" clang libclang-rt-dev
programs=build/fuzz/fuzz
build fuzz fuzz_seeds
mapfile -t targets < <("$programs/fuzz_seeds")
(($#)) && targets=("$@")
build fuzz "${targets[@]/#/fuzz_}"

findings=$PWD/build/fuzz/findings
mkdir -p "$findings"
export ASAN_OPTIONS=detect_leaks=1:allocator_may_return_null=1:handle_abort=2:malloc_context_size=12
export LSAN_OPTIONS=suppressions=$PWD/tools/lsan.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1
# Files of the runs had better never touch a disk.
TMPDIR=$(mktemp -d -p "$([[ -w /dev/shm ]] && echo /dev/shm || echo /tmp)")
export TMPDIR
running=
trap '[[ -z $running ]] || kill "$running" 2>/dev/null; rm -rf "$TMPDIR"' EXIT
trap 'exit 130' INT TERM
status=0

# outcome STATUS LOG: of a fuzzer, in words.
outcome() {
  if grep -q 'Test unit written' "$2"; then
    echo "FOUND something"
  elif (($1)); then
    echo "ENDED with status $1, which is no finding"
  else
    echo "nothing found"
  fi
}

# take_processor_seconds: what all that has ended took of the processors, in processor_seconds.
take_processor_seconds() {
  times >"$TMPDIR/times"
  processor_seconds=$(awk -F '[ms ]+' 'NR == 2 { print int(60 * $1 + $2 + 60 * $3 + $4) }' "$TMPDIR/times")
}

# fuzz TARGET: tells how many inputs were run, in how much of the processor's time, and the finding if there is one.
fuzz() {
  local target=$1 corpus=build/fuzz/corpus/$1 seeds=$TMPDIR/seeds-$1 log=build/fuzz/$1.log
  local most_bytes
  mkdir -p "$corpus"
  most_bytes=$("$programs/fuzz_seeds" "$target" "$seeds")
  local options=(-max_total_time="$seconds" -timeout=300 -report_slow_units=300 -rss_limit_mb=3072
    -print_final_stats=1
    -artifact_prefix="$findings/$target-" -max_len="$most_bytes")
  [[ -s $seeds.dict ]] && options+=(-dict="$seeds.dict")
  local ended=0 before
  take_processor_seconds
  before=$processor_seconds
  "$programs/fuzz_$target" "${options[@]}" "$corpus" "$seeds" >"$log" 2>&1 &
  running=$!
  wait "$running" || ended=$?
  running=
  take_processor_seconds
  echo "$target: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") inputs" \
    "in $((processor_seconds - before)) s of a processor," \
    "$(find "$corpus" -type f | wc -l) kept, $(outcome "$ended" "$log")"
  ((ended)) || return 0
  status=1
  grep -E '^(==|SUMMARY|internal error|.*runtime error|Test unit written)' "$log" | head -n 8
  echo "All of it stands in $log"
}

for target in "${targets[@]}"; do fuzz "$target"; done
exit "$status"
