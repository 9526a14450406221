#!/usr/bin/env bash
# Brings all sources into the project's form; with --check it changes nothing and fails where one isn't.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages clang-format
options=(-i)
[[ "${1:-}" == --check ]] && options=(--dry-run --Werror)
find src tests bench fuzz -name '*.h' -print0 -o -name '*.cpp' -print0 | xargs -0 clang-format "${options[@]}"
