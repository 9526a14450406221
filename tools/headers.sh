#!/usr/bin/env bash
# Compiles every header of src alone, so that none leans on what its users happen to include before it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages "${BUILD_PACKAGES[@]}" clang python3
python3 tools/headers.py
