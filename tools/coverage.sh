#!/usr/bin/env bash
# Tells how many lines of the core its tests reach, by folder. What they see of it is another question, which
# tools/mutate.sh answers. The build is one of clang in build/coverage.
#   tools/coverage.sh [FOLDER...]    those folders of src/ alone, each by its own tests
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages "${BUILD_PACKAGES[@]}" clang libclang-rt-dev llvm lld
readonly BUILD=$PWD/build/coverage
readonly INSTRUMENTED='-O0 -fprofile-instr-generate -fcoverage-mapping'
[[ -f $BUILD/build.ninja ]] ||
  cmake -G Ninja -S . -B "$BUILD" -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_CXX_FLAGS="$INSTRUMENTED" \
    -DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld >/dev/null

# The windows are tested by looking at them as well; their lines aren't counted.
folders=("$@")
(($#)) || mapfile -t folders < <(find tests -mindepth 2 -name '*_test.cpp' -printf '%h\n' | cut -d/ -f2 |
  sort -u | grep -v -x -e house -e ui)
programs=("${folders[@]/#/test_}")
ninja -C "$BUILD" "${programs[@]}"

rm -rf "$BUILD/profiles"
export QT_QPA_PLATFORM=offscreen
for program in "${programs[@]}"; do
  LLVM_PROFILE_FILE=$BUILD/profiles/$program.%p.raw "$BUILD/tests/$program" --gtest_brief=1
done
llvm-profdata merge -sparse "$BUILD"/profiles/*.raw -o "$BUILD/all.profile"

objects=()
for program in "${programs[@]}"; do objects+=(-object "$BUILD/tests/$program"); done
llvm-cov export "${objects[@]:1}" -instr-profile="$BUILD/all.profile" -summary-only |
  python3 tools/coverage_table.py "$PWD/src/" "$@"
