#!/usr/bin/env bash
# Compiles every header of src alone, so that none leans on what its users happen to include before it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages "${BUILD_PACKAGES[@]}"
qt=$(qmake6 -query QT_INSTALL_HEADERS)
options=(-std=c++20 -fsyntax-only -fPIC -DQT_NO_KEYWORDS -DQT_NO_CAST_TO_ASCII -Isrc -isystem "$qt")
for module in QtCore QtGui QtWidgets QtConcurrent; do options+=(-isystem "$qt/$module"); done
# Its folder bears its version.
for folder in /usr/include/QuaZip-Qt6-*; do options+=(-isystem "$folder"); done
find src -name '*.h' -print0 | xargs -0 -n 1 -P "$(nproc)" g++ "${options[@]}" -x c++ /dev/null -include
