#!/usr/bin/env bash
# Builds the benchmarks in release and runs them. Arguments go to the benchmark program:
#   tools/bench.sh --benchmark_filter=Load
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages "${BUILD_PACKAGES[@]}" imagemagick
cmake --preset release -DVENEERER_BENCH=ON >/dev/null
build release veneerer_bench
exec build/release/bench/veneerer_bench "$@"
